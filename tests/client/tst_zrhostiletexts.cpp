#include "ZrAutoBuildWidget.h"
#include "ZrComfirmDialog.h"
#include "ZrLabel.h"
#include "ZrLineEdit.h"
#include "ZrLogWidget.h"
#include "ZrMessageBox.h"
#include "ZrMoneyQtyLineEdit.h"
#include "ZrMultiComboBox.h"
#include "ZrQuietPlatform.h"
#include "ZrQuotationLabel.h"
#include "ZrReferenceHost.h"
#include "ZrRoleKeys.h"
#include "ZrShortCutKeyWidget.h"
#include "ZrTableView.h"
#include "ZrTestMain.h"
#include "ZrToastDialog.h"

#include "zrdefine/Constants.h"

#include <QtGui/QAccessible>
#include <QtGui/QHelpEvent>
#include <QtGui/QTextDocument>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QToolTip>
#include <QtWidgets/QVBoxLayout>

#include <functional>

/// Texts from outside are shown as they are, in every widget that shows text: no picture is read, no shortcut
/// made, and a long one leaves its window alone.
class tst_ZrHostileTexts : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void noPictureIsReadFromDisk_data() { addWidgets(); }
    void noPictureIsReadFromDisk();
    void anAmpersandIsNoShortcut_data() { addWidgets(); }
    void anAmpersandIsNoShortcut();
    void aLongTextStaysInside_data() { addWidgets(); }
    void aLongTextStaysInside();
    void marksOfDirectionAreKept_data() { addWidgets(); }
    void marksOfDirectionAreKept();

private:
    void addWidgets();

    QTemporaryDir m_folder;
    ZrReferenceHost m_host;
};

namespace {
/// Makes the widget with the text in every place that takes one.
using Maker = std::function<QWidget *(const QString &text, QWidget *parent)>;

constexpr QSize RoomPx(900, 600);

QString longText()
{
    return QString(100 * 1024, QLatin1Char('W'));
}

QWidget *messageBox(const QString &text, QWidget *parent)
{
    auto *const box = new ZrMessageBox(text, text, 3, parent, 0);
    box->setConfirmText(text);
    box->setCancelText(text);
    return box;
}

QWidget *confirmDialog(const QString &text, QWidget *parent)
{
    auto *const dialog = new ZrComfirmDialog(text, 3, parent, 0);
    dialog->setComfirmData({{text, text}, {text, text}});
    return dialog;
}

QWidget *toast(const QString &text, QWidget *parent)
{
    auto *const dialog = new ZrToastDialog(parent);
    dialog->ShowToastMessage(text, ZrToastDialog::LevelError);
    return dialog;
}

QWidget *logWidget(const QString &text, QWidget *parent)
{
    auto *const log = new ZrLogWidget(parent);
    log->showLog(true);
    log->setLog(text);
    log->appendLog(text);
    return log;
}

template<typename Label>
QWidget *label(const QString &text, QWidget *parent)
{
    auto *const made = new Label(parent);
    made->setText(text);
    return made;
}

template<typename Edit>
QWidget *edit(const QString &text, QWidget *parent)
{
    auto *const made = new Edit(parent);
    made->setText(text);
    return made;
}

QWidget *multiCombo(const QString &text, QWidget *parent)
{
    auto *const combo = new ZrMultiComboBox(parent);
    combo->setNoSelectedText(text);
    combo->addItems({text, text});
    combo->selectIndex(0, true);
    return combo;
}

QWidget *shortcutRow(const QString &text, QWidget *parent)
{
    auto *const row = new ZrShortCutKeyWidget(parent);
    row->setShortcutKeyDesc(text);
    return row;
}

QWidget *grid(const QString &text, QWidget *parent)
{
    auto *const view = new ZrTableView(parent);
    HeadList heads{{{HEAD_DISPLAYROLE, text}, {HEAD_GROUPID, text}, {HEAD_GROUPNAME, text}}};
    view->setHeadList(heads);
    view->setTableViewCaption(text);
    view->setHeadTip(0, text);
    view->addRecordDataList({{{0, {{ITEM_DISPLAYROLE, text}, {ITEM_TOOLTIPROLE, text}}}}});
    return view;
}

/// Names, values and choices are what a strategy's description says.
QWidget *form(const QString &text, QWidget *parent)
{
    const QVariantMap option{{Constants::STRATEGYPARAM_DISPLAYROLE, text},
                             {Constants::STRATEGYPARAM_USERROLE, 1}};
    QList<QVariantMap> records;
    for (const QString &type :
         {Constants::WIDGETTYPE_LABEL, Constants::WIDGETTYPE_LINEEDIT, Constants::WIDGETTYPE_RADIOBUTTON,
          Constants::WIDGETTYPE_COMBOBOX, Constants::WIDGETTYPE_CHECKBOX})
        records.append({{Constants::STRATEGYPARAM_PARAMID, type},
                        {Constants::STRATEGYPARAM_PARAMNAME, text},
                        {Constants::STRATEGYPARAM_ROW, records.size() + 1},
                        {Constants::STRATEGYPARAM_WIDGETTYPE, type},
                        {Constants::STRATEGYPARAM_INIT, text},
                        {Constants::STRATEGYPARAM_OPTIONS, QVariantList{option, option}}});
    auto *const made = new ZrAutoBuildWidget(parent);
    made->setAutoBuildWidgetDetails(records, 1);
    return made;
}

/// The widget in a window of some room, as a plugin's window would hold it; a dialog stands over it.
class Room
{
public:
    Room(const Maker &make, const QString &text)
    {
        auto *const layout = new QVBoxLayout(&m_window);
        m_window.resize(RoomPx);
        m_widget = make(text, &m_window);
        if (!m_widget->isWindow())
            layout->addWidget(m_widget, 0, Qt::AlignTop);
        m_window.show();
        m_widget->show();
        m_widget->grab();
    }

    QWidget &window() { return m_window; }
    QWidget *widget() const { return m_widget; }
    /// The widget and all in it that shows text.
    QList<QWidget *> all() const
    {
        QList<QWidget *> widgets = m_widget->findChildren<QWidget *>();
        widgets.prepend(m_widget);
        return widgets;
    }

private:
    QWidget m_window;
    QWidget *m_widget; // the window's
};

bool containsColour(const QImage &picture, const QColor &colour)
{
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixelColor(x, y) == colour)
                return true;
        }
    }
    return false;
}

/// What the pointer's resting on the widget brings up.
QString shownTip(QWidget *widget)
{
    QToolTip::hideText();
    const QPoint centre = widget->rect().center();
    QHelpEvent event(QEvent::ToolTip, centre, widget->mapToGlobal(centre));
    if (widget->isVisible())
        QCoreApplication::sendEvent(widget, &event);
    return QToolTip::text();
}

bool scrolls(const QWidget *widget)
{
    for (const QWidget *above = widget->parentWidget(); above; above = above->parentWidget()) {
        if (above->inherits("QAbstractScrollArea"))
            return true;
    }
    return false;
}

/// All that the screen reader would say.
void collectTexts(QAccessibleInterface *one, QStringList *texts)
{
    if (!one || !one->isValid())
        return;
    for (const QAccessible::Text kind : {QAccessible::Name, QAccessible::Value})
        texts->append(one->text(kind));
    for (int child = 0; child < one->childCount(); ++child)
        collectTexts(one->child(child), texts);
}
} // namespace

Q_DECLARE_METATYPE(Maker)

void tst_ZrHostileTexts::initTestCase()
{
    ZrQuietPlatform::install();
    ZrReferenceHost::Options options;
    options.configFolder = m_folder.filePath(QStringLiteral("config"));
    options.skinRoot = QStringLiteral(ZR_SKINS);
    options.skinId = QStringLiteral("dark");
    QVERIFY2(m_host.start(options), qPrintable(m_host.errorText()));
}

void tst_ZrHostileTexts::addWidgets()
{
    QTest::addColumn<Maker>("make");
    QTest::newRow("ZrMessageBox") << Maker(messageBox);
    QTest::newRow("ZrComfirmDialog") << Maker(confirmDialog);
    QTest::newRow("ZrToastDialog") << Maker(toast);
    QTest::newRow("ZrLogWidget") << Maker(logWidget);
    QTest::newRow("ZrLabel") << Maker(label<ZrLabel>);
    QTest::newRow("ZrQuotationLabel") << Maker(label<ZrQuotationLabel>);
    QTest::newRow("ZrLineEdit") << Maker(edit<ZrLineEdit>);
    QTest::newRow("ZrMoneyQtyLineEdit") << Maker(edit<ZrMoneyQtyLineEdit>);
    QTest::newRow("ZrMultiComboBox") << Maker(multiCombo);
    QTest::newRow("ZrShortCutKeyWidget") << Maker(shortcutRow);
    QTest::newRow("ZrTableView") << Maker(grid);
    QTest::newRow("ZrAutoBuildWidget") << Maker(form);
}

void tst_ZrHostileTexts::noPictureIsReadFromDisk()
{
    QFETCH(Maker, make);
    const QString path = m_folder.filePath(QStringLiteral("picture.png"));
    QImage picture(40, 40, QImage::Format_RGB32);
    picture.fill(Qt::magenta);
    QVERIFY(picture.save(path));
    const QString text = QStringLiteral("<img src=\"file://%1\"> <a href=\"x\">link</a>").arg(path);
    Room room(make, text);
    const QList<QWidget *> all = room.all();
    for (QWidget *const widget : all) {
        QVERIFY2(!containsColour(widget->grab().toImage(), Qt::magenta), widget->metaObject()->className());
        const QString tip = shownTip(widget);
        QTextDocument document;
        if (Qt::mightBeRichText(tip))
            document.setHtml(tip); // as the tip's label reads it: the text's signs have to be masked
        QVERIFY2(!document.toPlainText().contains(QChar::ObjectReplacementCharacter), qPrintable(tip));
    }
}

void tst_ZrHostileTexts::anAmpersandIsNoShortcut()
{
    QFETCH(Maker, make);
    Room room(make, QStringLiteral("a&x"));
    const QList<QWidget *> all = room.all();
    for (const QWidget *const widget : all) {
        if (const auto *const button = qobject_cast<const QAbstractButton *>(widget))
            QVERIFY2(button->shortcut().isEmpty(), widget->metaObject()->className());
    }
    QStringList texts;
    collectTexts(QAccessible::queryAccessibleInterface(room.widget()), &texts);
    const QStringList shown = texts.filter(QStringLiteral("a"));
    QVERIFY(shown.contains(QStringLiteral("a&x")) || !texts.filter(QStringLiteral("a&x")).isEmpty());
    QVERIFY2(texts.filter(QStringLiteral("ax")).isEmpty(), qPrintable(texts.join(QLatin1Char('|'))));
}

void tst_ZrHostileTexts::aLongTextStaysInside()
{
    QFETCH(Maker, make);
    Room room(make, longText());
    QCoreApplication::processEvents();
    QVERIFY2(room.widget()->width() <= RoomPx.width(), qPrintable(QString::number(room.widget()->width())));
    QVERIFY2(room.widget()->height() <= RoomPx.height(),
             qPrintable(QString::number(room.widget()->height())));
    QCOMPARE(room.window().size(), RoomPx);
    const QList<QWidget *> all = room.all();
    for (const QWidget *const widget : all) {
        const QRect place(widget->mapTo(room.widget(), QPoint()), widget->size());
        if (widget->isVisible() && widget->window() == room.widget()->window() && !scrolls(widget))
            QVERIFY2(room.widget()->rect().contains(place), widget->metaObject()->className());
    }
}

void tst_ZrHostileTexts::marksOfDirectionAreKept()
{
    QFETCH(Maker, make);
    const QString text = QStringLiteral("pay\u202E001\u202C \u05D0\u05D1 \u2067x\u2069");
    Room room(make, text);
    QStringList texts;
    collectTexts(QAccessible::queryAccessibleInterface(room.widget()), &texts);
    QVERIFY(texts.join(QLatin1Char('|')).contains(text));
    QVERIFY(room.widget()->width() <= RoomPx.width());
}

ZR_TEST_MAIN(tst_ZrHostileTexts)
#include "tst_zrhostiletexts.moc"
