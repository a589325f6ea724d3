#include "ZrQuietPlatform.h"
#include "ZrShots.h"
#include "ZrShowcaseDocks.h"
#include "ZrTestMain.h"

#include <QtCore/QTemporaryDir>
#include <QtWidgets/QDockWidget>
#include <QtWidgets/QMainWindow>

/// Pictures for the docs and for CI.
class tst_ZrShots : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void thereIsOneOfTheWindowAndOneOfEachDock();
    void aSecondRunReplacesTheFirst();
    void whatCannotBeWrittenIsOneSentence();
    void eachPageIsShownAtItsWholeHeight();

private:
    void addDock(const char *name, const QColor &colour, QSize size);
    QString folder(const char *name) const { return m_folder.filePath(QLatin1String(name)); }

    QTemporaryDir m_folder;
    QMainWindow m_window;
};

void tst_ZrShots::addDock(const char *name, const QColor &colour, QSize size)
{
    auto *const dock = new QDockWidget(&m_window);
    auto *const content = new QWidget;
    dock->setObjectName(QLatin1String(name));
    content->setFixedSize(size);
    content->setAutoFillBackground(true);
    content->setPalette(QPalette(colour));
    dock->setWidget(content);
    m_window.addDockWidget(Qt::LeftDockWidgetArea, dock);
}

void tst_ZrShots::initTestCase()
{
    ZrQuietPlatform::install();
    QVERIFY(m_folder.isValid());
    addDock("orders", Qt::red, {200, 90});
    addDock("depth", Qt::blue, {200, 150});
    m_window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&m_window));
}

void tst_ZrShots::thereIsOneOfTheWindowAndOneOfEachDock()
{
    const QString path = folder("new/deep");
    QCOMPARE(ZrShots::write(&m_window, path), QString());
    QCOMPARE(QDir(path).entryList(QDir::Files, QDir::Name),
             (QStringList{QStringLiteral("dock-depth.png"), QStringLiteral("dock-orders.png"),
                          QStringLiteral("window.png")}));
    QCOMPARE(QImage(path + QStringLiteral("/window.png")).size(), m_window.size());
    // Each picture shows its own dock.
    for (const auto &dock : {QPair<const char *, QColor>("orders", Qt::red), {"depth", Qt::blue}}) {
        const auto *const widget = m_window.findChild<QDockWidget *>(QLatin1String(dock.first));
        const QImage picture(path + QStringLiteral("/dock-%1.png").arg(QLatin1String(dock.first)));
        QCOMPARE(picture.size(), widget->size());
        QCOMPARE(picture.pixelColor(widget->widget()->geometry().center()), dock.second);
    }
}

void tst_ZrShots::aSecondRunReplacesTheFirst()
{
    const QString path = folder("again");
    QCOMPARE(ZrShots::write(&m_window, path), QString());
    const QSize before = QImage(path + QStringLiteral("/window.png")).size();
    m_window.resize(m_window.size() + QSize(60, 40));
    QTRY_VERIFY(m_window.size() != before);
    QCOMPARE(ZrShots::write(&m_window, path), QString());
    QCOMPARE(QImage(path + QStringLiteral("/window.png")).size(), m_window.size());
    QCOMPARE(QDir(path).entryList(QDir::Files).size(), 3);
}

void tst_ZrShots::whatCannotBeWrittenIsOneSentence()
{
    QFile file(folder("file"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(ZrShots::write(&m_window, file.fileName()),
             QStringLiteral("the folder %1 cannot be made.").arg(file.fileName()));
    // A folder stands where a picture belongs.
    QVERIFY(QDir(m_folder.path()).mkpath(QStringLiteral("taken/dock-orders.png")));
    QCOMPARE(ZrShots::write(&m_window, folder("taken")),
             QStringLiteral("the picture %1 cannot be written.").arg(folder("taken/dock-orders.png")));
}

void tst_ZrShots::eachPageIsShownAtItsWholeHeight()
{
    auto *const front = m_window.findChild<QDockWidget *>(QStringLiteral("orders"));
    ZrShowcaseDocks docks(&m_window, front);
    m_window.resize(700, 300);
    QCOMPARE(ZrShots::writePages(&docks, folder("pages")), QString());
    QStringList expected;
    const QStringList ids = docks.ids();
    for (const QString &id : ids)
        expected.append(QStringLiteral("showcase-%1.png").arg(id));
    expected.sort();
    QCOMPARE(QDir(folder("pages")).entryList(QDir::Files, QDir::Name), expected);
    const QImage picture(folder("pages/showcase-table-view.png"));
    QVERIFY(picture.height() > m_window.height());
    // A folder stands where a picture belongs.
    QVERIFY(QDir(m_folder.path()).mkpath(QStringLiteral("full/showcase-table-view.png")));
    QCOMPARE(ZrShots::writePages(&docks, folder("full")),
             QStringLiteral("the picture %1 cannot be written.").arg(folder("full/showcase-table-view.png")));
    QCOMPARE(ZrShots::writePages(&docks, folder("file")),
             QStringLiteral("the folder %1 cannot be made.").arg(folder("file")));
}

ZR_TEST_MAIN(tst_ZrShots)
#include "tst_zrshots.moc"
