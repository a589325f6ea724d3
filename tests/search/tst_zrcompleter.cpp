#include "SearchScene.h"
#include "ZrPlainText.h"

#include <QtCore/QStringListModel>
#include <QtWidgets/QStyledItemDelegate>

/// The popup list on a field of its own.
class tst_ZrCompleter : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void itIsSkinned();
    void theListIsShownAsItIs();
    void thePopupIs300WideUnderTheField();
    void aRectangleHasThePopupUnderIt();
    void withoutRowsThePopupIsHidden();
    void withoutAFieldNothingIsShown();
    void aPressOutsideIsTold_data();
    void aPressOutsideIsTold();
    void aPressWithTheListClosedIsNoTurningAway();
    void anotherButtonPressOnAnAncestorIsTold();
    void otherEventsAreNoTurningAway();
    void aSlotMayEndTheField();
    void theSheetDressesThePopupOnly();
    void anInvalidSheetIsIgnored();
    void theSheetFollowsTheSkin();
    void aLongRowIsCut();

private:
    void open() { m_completer->showPopup(QRect()); }
    QWidget *popup() const { return m_completer->popup(); }

    std::unique_ptr<SearchScene> m_scene;
    QPointer<QLineEdit> m_field;       // the scene's window's
    QPointer<ZrCompleter> m_completer; // the field's
};

void tst_ZrCompleter::init()
{
    m_scene = std::make_unique<SearchScene>();
    QVERIFY(m_scene->isReady());
    m_field = new QLineEdit(m_scene->window());
    m_field->setGeometry(40, 80, 100, 24);
    m_field->show();
    m_completer = new ZrCompleter(m_field);
    m_completer->setSearchWidget(m_field);
    m_completer->setSourceList({"b", "a", "c"});
}

void tst_ZrCompleter::cleanup()
{
    m_scene.reset();
}

void tst_ZrCompleter::itIsSkinned()
{
    QVERIFY(m_completer->qt_metacast("IZrSkin"));
    QVERIFY(m_completer->qt_metacast("com.orbenlake.Plugin.ISkin"));
    QCOMPARE(m_completer->widget(), m_field.data());
    QVERIFY(qobject_cast<QStringListModel *>(m_completer->model()));
    QCOMPARE(m_completer->model()->parent(), m_completer.data());
}

void tst_ZrCompleter::theListIsShownAsItIs()
{
    open();
    QVERIFY(popup()->isVisible());
    const QAbstractItemModel *const model = m_completer->completionModel();
    QCOMPARE(model->rowCount(), 3);
    QCOMPARE(model->index(0, 0).data().toString(), QString("b"));
    m_completer->setSourceList({"d"});
    QCOMPARE(model->rowCount(), 1);
    QCOMPARE(model->index(0, 0).data().toString(), QString("d"));
}

void tst_ZrCompleter::thePopupIs300WideUnderTheField()
{
    open();
    QCOMPARE(popup()->width(), 300);
    QCOMPARE(popup()->pos(), m_field->mapToGlobal(QPoint(0, m_field->height() - 2)));
    m_field->resize(380, 24);
    open();
    QCOMPARE(popup()->width(), 300);
}

void tst_ZrCompleter::aRectangleHasThePopupUnderIt()
{
    const QRect rect(10, -5, 50, 20);
    m_completer->showPopup(rect);
    QCOMPARE(popup()->pos(), m_field->mapToGlobal(rect.bottomLeft()));
    QCOMPARE(popup()->width(), 300);
}

void tst_ZrCompleter::withoutRowsThePopupIsHidden()
{
    open();
    QVERIFY(popup()->isVisible());
    m_completer->setSourceList({});
    open();
    QVERIFY(!popup()->isVisible());
}

void tst_ZrCompleter::withoutAFieldNothingIsShown()
{
    ZrCompleter completer;
    completer.setSourceList({"a"});
    completer.showPopup(QRect());
    QVERIFY(!completer.popup()->isVisible());
    completer.setSearchWidget(nullptr);
    completer.showPopup(QRect(0, 0, 10, 10));
    QVERIFY(!completer.popup()->isVisible());
}

void tst_ZrCompleter::aPressOutsideIsTold_data()
{
    QTest::addColumn<QString>("receiver");
    QTest::addColumn<QPoint>("at"); // in the field's coordinates
    QTest::addColumn<int>("told");
    QTest::newRow("window beside") << "window" << QPoint(-10, -10) << 1;
    QTest::newRow("list, but beside it") << "popup" << QPoint(-10, -10) << 1;
    QTest::newRow("field") << "field" << QPoint(5, 5) << 0;
    QTest::newRow("window, where the field is") << "window" << QPoint(5, 5) << 0;
    QTest::newRow("list, where the field is") << "popup" << QPoint(5, 5) << 0;
    QTest::newRow("list") << "popup" << QPoint(5, 40) << 0;
}

void tst_ZrCompleter::aPressOutsideIsTold()
{
    QFETCH(QString, receiver);
    QFETCH(QPoint, at);
    QFETCH(int, told);
    open();
    QVERIFY(QTest::qWaitForWindowExposed(popup()));
    const QSignalSpy away(m_completer, &ZrCompleter::completerFocusOutEvent);
    QWidget *const to = receiver == "window"  ? m_scene->window()
                        : receiver == "popup" ? popup()
                                              : static_cast<QWidget *>(m_field);
    QTest::mousePress(to, Qt::LeftButton, Qt::NoModifier, to->mapFromGlobal(m_field->mapToGlobal(at)));
    QCOMPARE(away.count(), told);
}

void tst_ZrCompleter::aPressWithTheListClosedIsNoTurningAway()
{
    const QSignalSpy away(m_completer, &ZrCompleter::completerFocusOutEvent);
    QTest::mousePress(m_scene->window(), Qt::LeftButton, Qt::NoModifier, QPoint(1, 1));
    QCOMPARE(away.count(), 0);
}

void tst_ZrCompleter::anotherButtonPressOnAnAncestorIsTold()
{
    open();
    const QSignalSpy away(m_completer, &ZrCompleter::completerFocusOutEvent);
    QTest::mousePress(m_scene->window(), Qt::RightButton, Qt::NoModifier, QPoint(1, 1));
    QCOMPARE(away.count(), 1);
}

void tst_ZrCompleter::otherEventsAreNoTurningAway()
{
    open();
    const QSignalSpy away(m_completer, &ZrCompleter::completerFocusOutEvent);
    QTest::mouseRelease(m_scene->window(), Qt::LeftButton, Qt::NoModifier, QPoint(1, 1));
    QTest::mouseMove(m_scene->window(), QPoint(2, 2));
    // Beside the ancestors.
    QTest::mousePress(m_scene->other(), Qt::LeftButton);
    QCOMPARE(away.count(), 0);
}

void tst_ZrCompleter::aSlotMayEndTheField()
{
    open();
    connect(m_completer, &ZrCompleter::completerFocusOutEvent, m_scene->window(),
            [this] { delete m_field.data(); });
    QTest::mousePress(m_scene->window(), Qt::LeftButton, Qt::NoModifier, QPoint(1, 1));
    QVERIFY(!m_completer);
}

void tst_ZrCompleter::theSheetDressesThePopupOnly()
{
    m_completer->loadSkin(QStringLiteral("QListView { color: #123456; }"));
    QCOMPARE(popup()->styleSheet(), QString("QListView { color: #123456; }"));
    QCOMPARE(m_field->styleSheet(), QString());
}

void tst_ZrCompleter::anInvalidSheetIsIgnored()
{
    m_completer->loadSkin(QStringLiteral("QListView { color: #123456; }"));
    m_completer->loadSkin(QVariant());
    QCOMPARE(popup()->styleSheet(), QString("QListView { color: #123456; }"));
}

void tst_ZrCompleter::theSheetFollowsTheSkin()
{
    const QString dark = popup()->styleSheet();
    QVERIFY(!dark.isEmpty());
    QVERIFY(m_scene->host()->setSkin("light"));
    QVERIFY(!popup()->styleSheet().isEmpty());
    QVERIFY(popup()->styleSheet() != dark);
}

void tst_ZrCompleter::aLongRowIsCut()
{
    const QString text = "<b>" + QString(100 * 1000, QLatin1Char('W'));
    m_completer->setSourceList({text});
    open();
    const auto *const delegate = qobject_cast<QStyledItemDelegate *>(m_completer->popup()->itemDelegate());
    QVERIFY(delegate);
    const QString shown = delegate->displayText(text, QLocale());
    QVERIFY(shown.size() < 1000);
    QVERIFY(shown.startsWith("<b>WWW"));
    QVERIFY(shown.endsWith(ZrPlainText::mark()));
    QCOMPARE(m_completer->completionModel()->index(0, 0).data().toString(), text);
}

ZR_TEST_MAIN(tst_ZrCompleter)
#include "tst_zrcompleter.moc"
