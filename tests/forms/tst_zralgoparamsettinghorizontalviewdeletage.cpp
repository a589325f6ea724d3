#include "ParamTable.h"
#include "ZrAlgoParamSettingHorizontalViewDeletage.h"
#include "ZrParamSheet.h"

#include <QtCore/QDir>
#include <QtGui/QPainter>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>

#include <memory>

namespace Security = Vexlor_Fields::Security;
namespace UserAccount = Vexlor_Fields::UserAccount;
using Delegate = ZrAlgoParamSettingHorizontalViewDeletage;

namespace {
const QString ViewId = QStringLiteral("basket");

QVariantMap line(const QString &id, const QString &type = Constants::VALUETYPE_STRING,
                 const QVariantMap &more = QVariantMap())
{
    return form::record(id, Constants::WIDGETTYPE_LINEEDIT, type, more);
}

QVariantMap offering(const form::Options &options)
{
    return {{Constants::STRATEGYPARAM_OPTIONS, form::options(options)}};
}

/// "type" depends on "side": under "sell" only "b" is offered, else "a" and "b".
QVariantMap dependent()
{
    return form::joined(form::record("type", Constants::WIDGETTYPE_COMBOBOX, Constants::VALUETYPE_STRING,
                                     offering({{"A", "a"}, {"B", "b"}})),
                        form::link("side", {form::linkCase("sell", offering({{"B", "b"}}))}));
}

/// A sheet of one table with one key column, whose last column is that of the actions.
class Sheet : public ZrParamSheet
{
public:
    explicit Sheet(const QList<QVariantMap> &records, int keyColumn = 0)
        : table(ids(records), keyColumn)
        , delegate(new Delegate)
        , m_keyColumn(keyColumn)
    {
        delegate->setParamRecords(records);
        delegate->settingPrivate = this;
        delegate->viewId = ViewId;
        delegate->actionColumn = records.size();
        table.view.setZrTableItemDelegate(delegate);
        addEmptyRow(ViewId);
        table.window.show();
        QApplication::setActiveWindow(&table.window);
    }

    ZrTableView *paramView(const QString &viewId) const override
    {
        return viewId == ViewId ? const_cast<ZrTableView *>(&table.view) : nullptr;
    }
    QModelIndex editIndex(const QString &viewId) const override { return edited.value(viewId); }
    void setEditIndex(const QString &viewId, const QModelIndex &index) override { edited[viewId] = index; }
    void addEmptyRow(const QString &viewId) override
    {
        added.append(viewId);
        table.view.addRecordData({{m_keyColumn, {{ITEM_DISPLAYROLE, ""}, {ITEM_USERROLE, " "}}}});
    }

    /// Opens the editor of a cell, as the sheet does after a double click.
    template<typename Editor>
    Editor *open(int row, int column)
    {
        const QModelIndex index = table.at(row, column);
        table.view.openPersistentEditor(index);
        setEditIndex(ViewId, index);
        return qobject_cast<Editor *>(editor(index));
    }

    QWidget *editor(const QModelIndex &index) const
    {
        return const_cast<ZrTableView &>(table.view).getTableView()->indexWidget(index);
    }

    void write(QWidget *editor, int row, int column)
    {
        delegate->setModelData(editor, table.model(), table.at(row, column));
    }

    ParamTable table;
    Delegate *const delegate; // the view's
    QMap<QString, QModelIndex> edited;
    QStringList added;

private:
    static QStringList ids(const QList<QVariantMap> &records)
    {
        QStringList list;
        for (const QVariantMap &record : records)
            list.append(record.value(Constants::STRATEGYPARAM_PARAMID).toString());
        return list << QString();
    }

    const int m_keyColumn;
};
} // namespace

class tst_ZrAlgoParamSettingHorizontalViewDeletage : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        m_quiet = std::make_unique<QuietPlatform>();
        QVERIFY(m_host.isReady());
    }
    void cleanupTestCase() { m_quiet.reset(); }

    // --- editors ---

    void aColumnWithoutAnEditorIsNotEditable()
    {
        QVariantMap shown = line("shown");
        shown.remove(Constants::STRATEGYPARAM_WIDGETTYPE);
        Sheet sheet({line("key"), shown});
        sheet.delegate->paramRecords.remove("key");
        QStyleOptionViewItem option;
        QWidget parent;
        for (int column = 0; column < 3; ++column)
            QVERIFY(!sheet.delegate->createEditor(&parent, option, sheet.table.at(0, column)));
        QVERIFY(parent.children().isEmpty());
        sheet.delegate->setParamRecords({line("key")});
        QVERIFY(sheet.delegate->createEditor(&parent, option, sheet.table.at(0, 0)));
        QCOMPARE(sheet.delegate->paramRecords.keys(), QStringList("key"));
    }

    void anEditorThatCannotBeMadeIsNone()
    {
        Sheet sheet({form::record("key", "Slider", Constants::VALUETYPE_INT)});
        QWidget parent;
        QVERIFY(!sheet.delegate->createEditor(&parent, QStyleOptionViewItem(), sheet.table.at(0, 0)));
    }

    void anEditorBeginsWithTheStoredValue()
    {
        Sheet sheet({line("key"),
                     line("price", Constants::VALUETYPE_DOUBLE, {{Constants::STRATEGYPARAM_INIT, "9"}})});
        sheet.table.addRow({"k", "1.50"});
        sheet.table.addRow({"l", ""});
        QWidget parent;
        const auto text = [&](int row) {
            QWidget *const editor =
                sheet.delegate->createEditor(&parent, QStyleOptionViewItem(), sheet.table.at(row, 1));
            return qobject_cast<QLineEdit *>(editor)->text();
        };
        QCOMPARE(text(1), QString("1.5"));
        QCOMPARE(text(2), QString("9"));
    }

    void choicesFollowTheRow()
    {
        Sheet sheet({line("key"), line("side"), dependent()});
        sheet.table.addRow({"k", "sell", "b"});
        sheet.table.addRow({"l", "buy", "b"});
        QWidget parent;
        const auto combo = [&](int row) {
            return qobject_cast<QComboBox *>(
                sheet.delegate->createEditor(&parent, QStyleOptionViewItem(), sheet.table.at(row, 2)));
        };
        QCOMPARE(combo(1)->count(), 1);
        QCOMPARE(combo(2)->count(), 2);
        QCOMPARE(combo(2)->currentText(), QString("B"));
    }

    void choicesFollowTheSecurityOfTheRow()
    {
        const QVariantMap record =
            form::joined(form::record("lot", Constants::WIDGETTYPE_COMBOBOX, Constants::VALUETYPE_STRING,
                                      offering({{"A", "a"}, {"B", "b"}})),
                         form::link("SecurityType", {form::linkCase("Fund", offering({{"F", "f"}}))}));
        Sheet sheet({line(Security::symbol), record});
        sheet.table.addRow({"510003.SH"});
        sheet.table.addRow({"600001.SH"});
        QWidget parent;
        const auto count = [&](int row) {
            return qobject_cast<QComboBox *>(
                       sheet.delegate->createEditor(&parent, QStyleOptionViewItem(), sheet.table.at(row, 1)))
                ->count();
        };
        QCOMPARE(count(1), 1);
        QCOMPARE(count(2), 2);
    }

    void anEditorIsNotFilledFromTheModelAgain()
    {
        Sheet sheet({line("key")});
        sheet.table.addRow({"k"});
        QLineEdit edit("typed");
        sheet.delegate->setEditorData(&edit, sheet.table.at(1, 0));
        QCOMPARE(edit.text(), QString("typed"));
    }

    // --- writing ---

    void anEditIsShownAndStored()
    {
        Sheet sheet({line("key"), line("price", Constants::VALUETYPE_DOUBLE)});
        sheet.table.addRow({"k"});
        QLineEdit edit("1.50");
        sheet.write(&edit, 1, 1);
        QCOMPARE(sheet.table.shown(1, 1), QVariant("1.50"));
        QCOMPARE(sheet.table.stored(1, 1), QVariant(1.5));
        edit.clear();
        sheet.write(&edit, 1, 1);
        QVERIFY(!sheet.table.view.getRowData(1).value(1).value(ITEM_USERROLE).isValid());
        QCOMPARE(sheet.added.size(), 1); // the one at the start
    }

    void aFilledBlankRowAsksForTheNext()
    {
        Sheet sheet(
            {line("key", Constants::VALUETYPE_STRING, {{Constants::STRATEGYPARAM_EXTRAACTION, "addrow"}}),
             line("price")});
        QCOMPARE(sheet.table.view.getRowCount(), 1);
        QLineEdit edit("k1");
        sheet.write(&edit, 0, 0);
        QCOMPARE(sheet.added, QStringList({ViewId, ViewId}));
        QCOMPARE(sheet.table.view.getRowCount(), 2);
        QCOMPARE(sheet.table.stored(0, 0), QVariant("k1"));
        QCOMPARE(sheet.table.stored(1, 0), QVariant(" "));
        // A blank row is still there: the next one merges into it.
        edit.setText("k2");
        sheet.write(&edit, 0, 0);
        QCOMPARE(sheet.table.view.getRowCount(), 2);
        QCOMPARE(sheet.table.view.getRowByKey("k2"), 0);
        QCOMPARE(sheet.table.view.getRowByKey(" "), 1);
    }

    void anotherExtraActionAddsNothing()
    {
        Sheet sheet(
            {line("key", Constants::VALUETYPE_STRING, {{Constants::STRATEGYPARAM_EXTRAACTION, "AddRow"}})});
        QLineEdit edit("k1");
        sheet.write(&edit, 0, 0);
        QCOMPARE(sheet.table.view.getRowCount(), 1);
    }

    void aSecurityFillsNameAndMarketOfItsRow()
    {
        Sheet sheet({line(UserAccount::SymbolPost),
                     line(Security::symbol, Constants::VALUETYPE_STRING,
                          {{Constants::STRATEGYPARAM_EXTRAACTION, "addrow"}}),
                     line(Security::chineseName)},
                    1);
        QLineEdit edit("600001.SH");
        sheet.write(&edit, 0, 1);
        QCOMPARE(sheet.table.stored(0, 0), QVariant("SH"));
        QCOMPARE(sheet.table.shown(0, 0), QVariant("Shanghai"));
        QCOMPARE(sheet.table.stored(0, 1), QVariant("600001.SH"));
        QCOMPARE(sheet.table.shown(0, 2), QVariant("north bank"));
    }

    void aChoiceThatBecameImpossibleIsCleared()
    {
        Sheet sheet({line("key"), line("side"), dependent()});
        sheet.table.addRow({"k", "buy", "a"});
        sheet.table.addRow({"l", "buy", "b"});
        QLineEdit edit("sell");
        sheet.write(&edit, 1, 1);
        sheet.write(&edit, 2, 1);
        QCOMPARE(sheet.table.stored(1, 2), QVariant(""));
        QCOMPARE(sheet.table.shown(1, 2), QVariant(""));
        QCOMPARE(sheet.table.stored(2, 2), QVariant("b"));
    }

    void aKeyThatIsThereAlreadyIsNotStored()
    {
        Sheet sheet(
            {line("key", Constants::VALUETYPE_STRING, {{Constants::STRATEGYPARAM_EXTRAACTION, "addrow"}})});
        sheet.table.addRow({"k1"});
        QLineEdit edit("k1");
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^key is exist .*k1"));
        sheet.write(&edit, 0, 0);
        // The blank row is blank again, and no other came.
        QCOMPARE(sheet.table.view.getRowCount(), 2);
        QCOMPARE(sheet.table.stored(0, 0), QVariant(" "));
        QCOMPARE(sheet.table.shown(0, 0), QVariant(""));
    }

    // --- the open editor ---

    void aFinishedEditClosesTheOpenEditor()
    {
        Sheet sheet({line("key"), line("price")});
        sheet.table.addRow({"k", "old"});
        QVERIFY(QTest::qWaitForWindowActive(&sheet.table.window));
        auto *const edit = sheet.open<QLineEdit>(1, 1);
        QVERIFY(edit);
        QSignalSpy current(&sheet.table.view, &ZrTableView::currentIndexChanged);
        edit->setFocus();
        edit->selectAll();
        QTest::keyClicks(edit, "new");
        QTest::keyClick(edit, Qt::Key_Return);
        QTRY_COMPARE(sheet.table.stored(1, 1), QVariant("new"));
        QVERIFY(!sheet.edited.value(ViewId).isValid());
        QVERIFY(!sheet.editor(sheet.table.at(1, 1)));
        QCOMPARE(sheet.table.view.currentIndex(), sheet.table.at(1, 1));
        QVERIFY(!current.isEmpty());
    }

    void withoutAnOpenEditorNothingIsClosed()
    {
        Sheet sheet({line("key"), line("price")});
        sheet.table.addRow({"k", "old"});
        QSignalSpy current(&sheet.table.view, &ZrTableView::currentIndexChanged);
        QLineEdit edit("new");
        sheet.write(&edit, 1, 1);
        QVERIFY(current.isEmpty());
        sheet.delegate->viewId = "other";
        sheet.setEditIndex("other", sheet.table.at(1, 1));
        sheet.write(&edit, 1, 1);
        QVERIFY(sheet.edited.value("other").isValid());
    }

    void withoutASheetTheCellIsWritten()
    {
        ParamTable table({"key", "price"});
        table.addRow({"k", "old"});
        Delegate delegate;
        delegate.setParamRecords(
            {line("price", Constants::VALUETYPE_STRING, {{Constants::STRATEGYPARAM_EXTRAACTION, "addrow"}})});
        QLineEdit edit("new");
        delegate.setModelData(&edit, table.model(), table.at(0, 1));
        QCOMPARE(table.stored(0, 1), QVariant("new"));
        QCOMPARE(table.view.getRowCount(), 1);
    }

    // --- painting ---

    void theDeletePictureStandsInTheActionColumnOfEachRow()
    {
        QTemporaryDir skins;
        makeSkin(skins, "red", Qt::red);
        makeSkin(skins, "blue", Qt::blue);
        makeSkin(skins, "bare", QColor());
        QTemporaryDir config;
        ZrReferenceHost::Options options;
        options.configFolder = config.path();
        options.skinRoot = skins.path();
        options.skinId = "red";
        QVERIFY(m_host.host.start(options));
        Sheet sheet({line("key")});
        sheet.table.addRow({"k"});
        for (const int row : {0, 1}) {
            QCOMPARE(painted(sheet, row, 1).pixelColor(40, 20), QColor(Qt::red));
            QCOMPARE(painted(sheet, row, 1).pixelColor(40 - 6, 20), QColor(Qt::white)); // 10 px wide
            QCOMPARE(painted(sheet, row, 0).pixelColor(40, 20), QColor(Qt::white));
        }
        QVERIFY(m_host.host.setSkin("blue"));
        QCOMPARE(painted(sheet, 0, 1).pixelColor(40, 20), QColor(Qt::blue));
        QVERIFY(m_host.host.setSkin("bare"));
        QCOMPARE(painted(sheet, 0, 1).pixelColor(40, 20), QColor(Qt::white));
    }

private:
    static void makeSkin(const QTemporaryDir &root, const QString &id, const QColor &colour)
    {
        const QString folder = root.path() + "/" + id + "/images/portfoliocreate";
        QVERIFY(QDir().mkpath(folder));
        if (!colour.isValid())
            return;
        QPixmap picture(10, 10);
        picture.fill(colour);
        QVERIFY(picture.save(folder + "/delete.png"));
    }

    /// A cell of 80 by 40 px on white.
    static QImage painted(const Sheet &sheet, int row, int column)
    {
        QImage image(80, 40, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        QStyleOptionViewItem option;
        option.rect = image.rect();
        sheet.delegate->paint(&painter, option, sheet.table.at(row, column));
        return image;
    }

    FormHost m_host;
    std::unique_ptr<QuietPlatform> m_quiet; // once the test's own handler is in place
};

ZR_TEST_MAIN(tst_ZrAlgoParamSettingHorizontalViewDeletage)
#include "tst_zralgoparamsettinghorizontalviewdeletage.moc"
