#include "EditorScene.h"
#include "ZrFloatingTip.h"
#include "ZrTestMain.h"

#include <QtGui/QScreen>
#include <QtWidgets/QLabel>
#include <QtWidgets/QToolTip>

namespace {

const QPoint Somewhere(120, 90);

/// Counts how often a widget was dressed anew.
class DressCounter : public QObject
{
public:
    explicit DressCounter(QObject *object) { object->installEventFilter(this); }
    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::StyleChange ? 1 : 0;
        return false;
    }
    int count = 0;
};

} // namespace

class tst_ZrFloatingTip : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void aRewrittenTipLooksLikeTheToolkits_data();
    void aRewrittenTipLooksLikeTheToolkits();
    void onlyTheFirstTextIsDressed();
    void aStandingTipIsRefreshedInTime();
    void anotherPointMovesTheTip();
    void anEmptyTextHidesTheTip();
    void markupIsLeftToTheToolkit();
    void aTipAtTheEdgeOfTheScreenMoves();
    void aTipThatTheToolkitEndedComesBack();
    void anotherWidgetsTipIsLeftAlone();

private:
    static QLabel *tipOf(const QWidget *widget);
    std::unique_ptr<QuietPlatform> m_quiet;
    std::unique_ptr<QWidget> m_widget;
};

void tst_ZrFloatingTip::init()
{
    m_quiet = std::make_unique<QuietPlatform>();
    m_widget = std::make_unique<QWidget>();
    m_widget->resize(100, 30);
    m_widget->setStyleSheet("QToolTip { background: #102030; color: #ffffff; border: 2px solid #405060;"
                            " padding: 5px; font-size: 13px; }");
    m_widget->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_widget.get()));
}

void tst_ZrFloatingTip::cleanup()
{
    m_widget.reset();
    QTRY_VERIFY(!QToolTip::isVisible());
    m_quiet.reset();
}

QLabel *tst_ZrFloatingTip::tipOf(const QWidget *widget)
{
    const auto all = widget->findChildren<QLabel *>("qtooltip_label");
    const auto found = std::find_if(all.cbegin(), all.cend(), [](QLabel *tip) { return tip->isVisible(); });
    return found == all.cend() ? nullptr : *found;
}

void tst_ZrFloatingTip::aRewrittenTipLooksLikeTheToolkits_data()
{
    QTest::addColumn<QString>("sheet");
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");

    const QString dressed = "QToolTip { background: #102030; color: #ffffff; border: 2px solid #405060;"
                            " padding: 5px; }";
    QTest::newRow("longer") << dressed << "1234" << QStringLiteral("1万2345");
    QTest::newRow("shorter") << dressed << QStringLiteral("1万2345") << "1234";
    QTest::newRow("longest") << dressed << "1" << QStringLiteral("12345678亿9012万3456.789");
    QTest::newRow("without a sheet") << ""
                                     << "1234" << QStringLiteral("1万2345");
}

void tst_ZrFloatingTip::aRewrittenTipLooksLikeTheToolkits()
{
    QFETCH(QString, sheet);
    QFETCH(QString, first);
    QFETCH(QString, second);
    m_widget->setStyleSheet(sheet);
    ZrFloatingTip tip(m_widget.get());
    tip.show(Somewhere, first);
    tip.show(Somewhere, second);
    QVERIFY(tipOf(m_widget.get()));
    QCOMPARE(QToolTip::text(), second);
    const QRect place = tipOf(m_widget.get())->geometry();
    const QImage look = tipOf(m_widget.get())->grab().toImage();

    QToolTip::showText(Somewhere, "another", m_widget.get());
    QToolTip::showText(Somewhere, second, m_widget.get());
    QCOMPARE(place, tipOf(m_widget.get())->geometry());
    QCOMPARE(look, tipOf(m_widget.get())->grab().toImage());
}

void tst_ZrFloatingTip::onlyTheFirstTextIsDressed()
{
    ZrFloatingTip tip(m_widget.get());
    tip.show(Somewhere, "1");
    DressCounter dressed(tipOf(m_widget.get()));
    for (const char *text : {"12", "123", "1234"})
        tip.show(Somewhere, text);
    QCOMPARE(dressed.count, 0);
    QToolTip::showText(Somewhere, "5", m_widget.get());
    QVERIFY(dressed.count > 0);
}

void tst_ZrFloatingTip::aStandingTipIsRefreshedInTime()
{
    ZrFloatingTip tip(m_widget.get(), 0); // at once
    tip.show(Somewhere, "1");
    DressCounter dressed(tipOf(m_widget.get()));
    tip.show(Somewhere, "12");
    QVERIFY(dressed.count > 0);
    QCOMPARE(QToolTip::text(), QString("12"));
}

void tst_ZrFloatingTip::anotherPointMovesTheTip()
{
    ZrFloatingTip tip(m_widget.get());
    tip.show(Somewhere, "1");
    const QPoint before = tipOf(m_widget.get())->pos();
    tip.show(Somewhere + QPoint(30, 20), "12");
    QCOMPARE(tipOf(m_widget.get())->pos(), before + QPoint(30, 20));
}

void tst_ZrFloatingTip::anEmptyTextHidesTheTip()
{
    ZrFloatingTip tip(m_widget.get());
    tip.show(Somewhere, "1");
    tip.show(Somewhere, QString());
    QTRY_VERIFY(!QToolTip::isVisible());
    tip.show(Somewhere, QString());
    QVERIFY(!QToolTip::isVisible());
}

void tst_ZrFloatingTip::markupIsLeftToTheToolkit()
{
    ZrFloatingTip tip(m_widget.get());
    tip.show(Somewhere, "1");
    tip.show(Somewhere, "<b>2</b>");
    QVERIFY(tipOf(m_widget.get())->wordWrap());
    QCOMPARE(QToolTip::text(), QString("<b>2</b>"));
    tip.show(Somewhere, "3");
    QVERIFY(!tipOf(m_widget.get())->wordWrap());
    QCOMPARE(QToolTip::text(), QString("3"));
}

void tst_ZrFloatingTip::aTipAtTheEdgeOfTheScreenMoves()
{
    const QRect screen = m_widget->screen()->geometry();
    const QPoint edge(screen.right() - 30, 90);
    ZrFloatingTip tip(m_widget.get());
    tip.show(edge, "1");
    tip.show(edge, "1234567890123456");
    QCOMPARE(QToolTip::text(), QString("1234567890123456"));
    QVERIFY(screen.contains(tipOf(m_widget.get())->geometry()));
}

void tst_ZrFloatingTip::aTipThatTheToolkitEndedComesBack()
{
    ZrFloatingTip tip(m_widget.get());
    tip.show(Somewhere, "1");
    QEvent away(QEvent::WindowDeactivate);
    QCoreApplication::sendEvent(m_widget.get(), &away);
    QVERIFY(!QToolTip::isVisible());
    tip.show(Somewhere, "12");
    QVERIFY(QToolTip::isVisible());
    QCOMPARE(QToolTip::text(), QString("12"));
}

void tst_ZrFloatingTip::anotherWidgetsTipIsLeftAlone()
{
    QWidget other;
    ZrFloatingTip tip(m_widget.get());
    tip.show(Somewhere, "1");
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible());
    QToolTip::showText(Somewhere, "other", &other);
    QVERIFY(tipOf(&other));
    tip.show(Somewhere, "12");
    QCOMPARE(QToolTip::text(), QString("12"));
    QVERIFY(QToolTip::isVisible());
}

ZR_TEST_MAIN(tst_ZrFloatingTip)
#include "tst_zrfloatingtip.moc"
