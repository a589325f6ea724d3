#include "DialogScene.h"
#include "ZrHelpMark.h"
#include "ZrTestMain.h"

#include <QtWidgets/QDialog>

class tst_ZrHelpMark : public QObject
{
    Q_OBJECT
private slots:
    void thePictureOfTheSkinStandsInTheMiddle_data();
    void thePictureOfTheSkinStandsInTheMiddle();
    void anotherSkinsPictureComesAtOnce();
    void returnInAWindowIsNotItsBusiness();
    void theKeyboardPressesIt();
    void itHasANameForThoseWhoDoNotSeeThePicture();

private:
    static QImage pictureOf(const QString &skin);
    static QImage middleOf(ZrHelpMark *mark);
};

QImage tst_ZrHelpMark::pictureOf(const QString &skin)
{
    return QImage(QStringLiteral(ZR_SKINS "/%1/images/master/widget/help_pad.png").arg(skin))
        .convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

// What the mark paints and nothing below it.
QImage tst_ZrHelpMark::middleOf(ZrHelpMark *mark)
{
    mark->setStyleSheet("background: transparent; border: none;");
    mark->resize(mark->sizeHint());
    QImage image(mark->size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    mark->render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    QRect place(0, 0, 16, 16);
    place.moveCenter(mark->rect().center());
    return image.copy(place);
}

void tst_ZrHelpMark::thePictureOfTheSkinStandsInTheMiddle_data()
{
    QTest::addColumn<QString>("skin");
    QTest::newRow("dark") << "dark";
    QTest::newRow("light") << "light";
}

void tst_ZrHelpMark::thePictureOfTheSkinStandsInTheMiddle()
{
    QFETCH(QString, skin);
    const DialogScene scene(skin);
    QVERIFY(scene.isReady());
    ZrHelpMark mark;
    QCOMPARE(mark.sizeHint(), QSize(24, 24));
    const QImage wanted = pictureOf(skin);
    QVERIFY(!wanted.isNull());
    QCOMPARE(middleOf(&mark), wanted);
}

void tst_ZrHelpMark::anotherSkinsPictureComesAtOnce()
{
    DialogScene scene("dark");
    QVERIFY(scene.isReady());
    ZrHelpMark mark;
    QCOMPARE(middleOf(&mark), pictureOf("dark"));
    QVERIFY(pictureOf("dark") != pictureOf("light"));
    QVERIFY(scene.host.setSkin("light"));
    QCOMPARE(middleOf(&mark), pictureOf("light"));
}

void tst_ZrHelpMark::returnInAWindowIsNotItsBusiness()
{
    const DialogScene scene;
    QDialog dialog;
    const ZrHelpMark mark(&dialog);
    QVERIFY(!mark.autoDefault());
    QVERIFY(!mark.isDefault());
}

void tst_ZrHelpMark::theKeyboardPressesIt()
{
    const DialogScene scene;
    ZrHelpMark mark;
    mark.show();
    QVERIFY(mark.focusPolicy() & Qt::TabFocus);
    const QSignalSpy clicked(&mark, &QPushButton::clicked);
    QTest::keyClick(&mark, Qt::Key_Space);
    QCOMPARE(clicked.count(), 1);
}

void tst_ZrHelpMark::itHasANameForThoseWhoDoNotSeeThePicture()
{
    const DialogScene scene;
    const ZrHelpMark mark;
    QCOMPARE(mark.text(), QString());
    QCOMPARE(mark.accessibleName(), QString("Help"));
    QCOMPARE(mark.toolTip(), QString("Help"));
}

ZR_TEST_MAIN(tst_ZrHelpMark)
#include "tst_zrhelpmark.moc"
