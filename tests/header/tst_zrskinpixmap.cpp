#include "HeadScene.h"
#include "ZrSkinPixmap.h"
#include "ZrTestMain.h"

#include <QtCore/QFile>
#include <QtGui/QImageReader>
#include <QtGui/QPainter>

class tst_ZrSkinPixmap : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void pathsThatLeaveTheSkinAreRefused_data();
    void pathsThatLeaveTheSkinAreRefused();
    void aFileOutsideOfTheSkinIsNotShown();
    void aPictureIsScaledToTheWantedSizeAndRatio();
    void aDrawingIsRenderedAtTheWantedSize();
    void aMissingFilePaintsNothing();
    void aPictureIsKeptUntilTheSkinChanges();
    void aPictureFollowsTheSkin();
    void aHugePictureIsRefused();
    void aHostThatStartsAgainIsFollowed();

private:
    static QRgb middle(const QPixmap &picture);
    std::unique_ptr<SkinFolder> m_skin;
};

void tst_ZrSkinPixmap::init()
{
    m_skin = std::make_unique<SkinFolder>();
    QVERIFY(m_skin->isReady());
}

void tst_ZrSkinPixmap::cleanup()
{
    m_skin.reset();
}

QRgb tst_ZrSkinPixmap::middle(const QPixmap &picture)
{
    return picture.isNull() ? 0 : picture.toImage().pixel(picture.width() / 2, picture.height() / 2);
}

void tst_ZrSkinPixmap::pathsThatLeaveTheSkinAreRefused_data()
{
    QTest::addColumn<QString>("skin");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("expected");

    QTest::newRow("plain") << "dark"
                           << "img/a.png"
                           << "ZRSkin:dark/img/a.png";
    QTest::newRow("leading slash stays below") << "dark"
                                               << "/img/a.png"
                                               << "ZRSkin:dark//img/a.png";
    QTest::newRow("two dots in a name") << "dark"
                                        << "img/a..png"
                                        << "ZRSkin:dark/img/a..png";
    QTest::newRow("percent sign") << "dark"
                                  << "img/%1.png"
                                  << "ZRSkin:dark/img/%1.png";
    QTest::newRow("climbs") << "dark"
                            << "../light/a.png"
                            << "";
    QTest::newRow("climbs late") << "dark"
                                 << "img/../../a.png"
                                 << "";
    QTest::newRow("climbs by backslash") << "dark"
                                         << "img\\..\\..\\a.png"
                                         << "";
    QTest::newRow("no path") << "dark"
                             << ""
                             << "";
    QTest::newRow("no skin") << ""
                             << "img/a.png"
                             << "";
    QTest::newRow("skin is a path") << "dark/../.."
                                    << "img/a.png"
                                    << "";
    QTest::newRow("skin climbs") << ".."
                                 << "img/a.png"
                                 << "";
}

void tst_ZrSkinPixmap::pathsThatLeaveTheSkinAreRefused()
{
    QFETCH(QString, skin);
    QFETCH(QString, path);
    QFETCH(QString, expected);
    QCOMPARE(ZrSkinPixmap::fileName(skin, path), expected);
}

void tst_ZrSkinPixmap::aFileOutsideOfTheSkinIsNotShown()
{
    m_skin->write("other", "secret.png", Qt::red);
    QVERIFY(ZrSkinPixmap::get("../other/secret.png", {16, 16}, 1.0).isNull());
    QVERIFY(ZrSkinPixmap::get(m_skin->folder("other") + "/secret.png", {16, 16}, 1.0).isNull());
}

void tst_ZrSkinPixmap::aPictureIsScaledToTheWantedSizeAndRatio()
{
    const QPixmap plain = ZrSkinPixmap::get("img/check.png", {16, 16}, 1.0);
    QCOMPARE(plain.size(), QSize(16, 16));
    const QPixmap dense = ZrSkinPixmap::get("img/check.png", {16, 16}, 2.0);
    QCOMPARE(dense.size(), QSize(32, 32));
    QCOMPARE(dense.devicePixelRatioF(), 2.0);
    QCOMPARE(middle(dense), SkinFolder::check.rgb());
}

void tst_ZrSkinPixmap::aDrawingIsRenderedAtTheWantedSize()
{
    // One of the packages that ./dev installs: without it the skins have no pictures.
    QVERIFY(QImageReader::supportedImageFormats().contains("svg"));
    // Two halves with a sharp edge: scaled up from 2 pixels it would be blurred.
    QFile file(m_skin->folder("test") + "/img/edge.svg");
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(
        "<svg xmlns='http://www.w3.org/2000/svg' width='2' height='2'>"
        "<rect width='1' height='2' fill='#ff0000'/><rect x='1' width='1' height='2' fill='#0000ff'/></svg>");
    file.close();
    const QImage picture = ZrSkinPixmap::get("img/edge.svg", {32, 32}, 1.0).toImage();
    QCOMPARE(picture.size(), QSize(32, 32));
    QCOMPARE(picture.pixelColor(14, 16), QColor(Qt::red));
    QCOMPARE(picture.pixelColor(17, 16), QColor(Qt::blue));
}

void tst_ZrSkinPixmap::aMissingFilePaintsNothing()
{
    QImage target(20, 20, QImage::Format_ARGB32);
    target.fill(Qt::white);
    const QImage before = target;
    QPainter painter(&target);
    ZrSkinPixmap::draw(&painter, QRect(0, 0, 16, 16), QUrl("img/none.png"));
    ZrSkinPixmap::draw(&painter, QRect(0, 0, 16, 16), QUrl());
    ZrSkinPixmap::draw(&painter, QRect(), QUrl("img/check.png"));
    painter.end();
    QCOMPARE(target, before);
}

void tst_ZrSkinPixmap::aPictureIsKeptUntilTheSkinChanges()
{
    QCOMPARE(middle(ZrSkinPixmap::get("img/check.png", {16, 16}, 1.0)), SkinFolder::check.rgb());
    m_skin->write("test", "img/check.png", Qt::black);
    QCOMPARE(middle(ZrSkinPixmap::get("img/check.png", {16, 16}, 1.0)), SkinFolder::check.rgb());
    m_skin->write("second", "img/check.png", Qt::white);
    QVERIFY(m_skin->host.setSkin("second"));
    QVERIFY(m_skin->host.setSkin("test"));
    QCOMPARE(middle(ZrSkinPixmap::get("img/check.png", {16, 16}, 1.0)), QColor(Qt::black).rgb());
}

void tst_ZrSkinPixmap::aPictureFollowsTheSkin()
{
    m_skin->write("second", "img/check.png", Qt::white);
    QCOMPARE(middle(ZrSkinPixmap::get("img/check.png", {16, 16}, 1.0)), SkinFolder::check.rgb());
    QVERIFY(m_skin->host.setSkin("second"));
    QCOMPARE(middle(ZrSkinPixmap::get("img/check.png", {16, 16}, 1.0)), QColor(Qt::white).rgb());
}

void tst_ZrSkinPixmap::aHugePictureIsRefused()
{
    m_skin->write("test", "img/huge.png", Qt::red, {4000, 8});
    QVERIFY(ZrSkinPixmap::get("img/huge.png", {16, 16}, 1.0).isNull());
}

void tst_ZrSkinPixmap::aHostThatStartsAgainIsFollowed()
{
    QCOMPARE(middle(ZrSkinPixmap::get("img/check.png", {16, 16}, 1.0)), SkinFolder::check.rgb());
    m_skin.reset();
    QVERIFY(ZrSkinPixmap::get("img/check.png", {16, 16}, 1.0).isNull());
    m_skin = std::make_unique<SkinFolder>();
    QVERIFY(m_skin->isReady());
    QCOMPARE(middle(ZrSkinPixmap::get("img/check.png", {16, 16}, 1.0)), SkinFolder::check.rgb());
}

ZR_TEST_MAIN(tst_ZrSkinPixmap)
#include "tst_zrskinpixmap.moc"
