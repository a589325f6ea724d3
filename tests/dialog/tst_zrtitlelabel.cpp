#include "DialogScene.h"
#include "ZrQuietPlatform.h"
#include "ZrTestMain.h"
#include "ZrTitleLabel.h"

#include <QtGui/QHelpEvent>
#include <QtGui/QTextDocument>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QToolTip>

class tst_ZrTitleLabel : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { ZrQuietPlatform::install(); }
    void aTitleIsShownAsItIs();
    void aLongTitleDoesNotWidenItsWindow();
    void aCutTitleEndsInAnEllipsis();
    void theWholeOfACutTitleIsItsToolTip();

private:
    static QImage shot(QLabel *label);
};

QImage tst_ZrTitleLabel::shot(QLabel *label)
{
    return label->grab().toImage();
}

void tst_ZrTitleLabel::aTitleIsShownAsItIs()
{
    ZrTitleLabel label;
    label.setTitle(DialogScene::markup());
    QCOMPARE(label.text(), DialogScene::markup());
    QCOMPARE(label.textFormat(), Qt::PlainText);
    // Letter by letter what a label of plain text paints.
    QLabel plain;
    plain.setTextFormat(Qt::PlainText);
    plain.setText(DialogScene::markup());
    label.resize(700, 30);
    plain.resize(700, 30);
    QCOMPARE(shot(&label), shot(&plain));
}

void tst_ZrTitleLabel::aLongTitleDoesNotWidenItsWindow()
{
    QWidget window;
    auto *const label = new ZrTitleLabel;
    (new QHBoxLayout(&window))->addWidget(label);
    label->setTitle(DialogScene::withoutBlank());
    QVERIFY(window.minimumSizeHint().width() < 60);
}

void tst_ZrTitleLabel::aCutTitleEndsInAnEllipsis()
{
    ZrTitleLabel cut;
    cut.setTitle("Confirm the order of the day before yesterday");
    cut.resize(100, 30);
    ZrTitleLabel wanted;
    wanted.setTitle(cut.fontMetrics().elidedText(cut.text(), Qt::ElideRight, 100));
    QVERIFY(wanted.text() != cut.text());
    wanted.resize(100, 30);
    QCOMPARE(shot(&cut), shot(&wanted));
}

void tst_ZrTitleLabel::theWholeOfACutTitleIsItsToolTip()
{
    ZrTitleLabel label;
    label.setTitle("<b>Confirm</b> the order of the day before yesterday");
    label.resize(60, 30);
    label.show();
    QHelpEvent event(QEvent::ToolTip, QPoint(5, 5), label.mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(&label, &event);
    QVERIFY(!Qt::mightBeRichText(label.toolTip()) || label.toolTip().contains("&lt;b&gt;"));
    QVERIFY(label.toolTip().contains("the day before yesterday"));
    label.resize(900, 30);
    QCoreApplication::sendEvent(&label, &event);
    QCOMPARE(label.toolTip(), QString());
}

ZR_TEST_MAIN(tst_ZrTitleLabel)
#include "tst_zrtitlelabel.moc"
