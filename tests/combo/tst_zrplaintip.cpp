#include "ComboScene.h"
#include "ZrPlainTip.h"

#include <QtGui/QHelpEvent>
#include <QtWidgets/QLabel>
#include <QtWidgets/QToolTip>

class tst_ZrPlainTip : public QObject
{
    Q_OBJECT
private slots:
    void cleanup() { QToolTip::hideText(); }

    void aTipIsShownAsItStands()
    {
        QLabel label;
        const ZrPlainTip *const tip = new ZrPlainTip(&label);
        QCOMPARE(tip->parent(), &label);
        label.setToolTip(QStringLiteral("600000.SH;000001.SZ"));
        label.show();
        QCOMPARE(tipOver(&label), QStringLiteral("600000.SH;000001.SZ"));
    }

    void markupIsShownAndNotRead()
    {
        QLabel label;
        new ZrPlainTip(&label);
        label.setToolTip(QStringLiteral("<img src='file:///etc/passwd'>"));
        label.show();
        const QString shown = tipOver(&label);
        QVERIFY2(shown.contains(QStringLiteral("&lt;img")), qPrintable(shown));
        QVERIFY2(!shown.contains(QStringLiteral("<img")), qPrintable(shown));
        QCOMPARE(label.toolTip(), QStringLiteral("<img src='file:///etc/passwd'>"));
    }

    void aLongTipIsCut()
    {
        QLabel label;
        new ZrPlainTip(&label);
        label.setToolTip(QString(100000, QLatin1Char('x')));
        label.show();
        QVERIFY(tipOver(&label).size() < 10000);
    }

    void withoutATextTheWidgetAroundItIsAsked()
    {
        QLabel label;
        new ZrPlainTip(&label);
        QHelpEvent event(QEvent::ToolTip, QPoint(1, 1), QPoint(1, 1));
        QCoreApplication::sendEvent(&label, &event);
        QVERIFY(!event.isAccepted());
        QVERIFY(!QToolTip::isVisible());
    }

    void otherEventsAreNotTouched()
    {
        QLabel label;
        QEvent enter(QEvent::Enter);
        QVERIFY(!ZrPlainTip::show(&label, &enter));
    }
};

ZR_TEST_MAIN(tst_ZrPlainTip)
#include "tst_zrplaintip.moc"
