#include "ShowcaseScene.h"
#include "ZrQuietPlatform.h"
#include "ZrShowcasePage.h"
#include "ZrShowcasePages.h"
#include "ZrTestMain.h"

#include <QtGui/QAccessible>

/// What has to hold for every page of the showcase.
class tst_ZrShowcasePages : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase() { m_scene.reset(); }
    void theListKnowsWhatThePagesAre_data() { addPages(); }
    void theListKnowsWhatThePagesAre();
    void noTwoPagesShareAnId();
    void aPageAfterASwitchIsThatOfAFreshStart_data() { addPages(); }
    void aPageAfterASwitchIsThatOfAFreshStart();
    void everyControlHasAName_data() { addPages(); }
    void everyControlHasAName();
    void nothingStandsOutsideThePage_data() { addPages(); }
    void nothingStandsOutsideThePage();

private:
    void addPages();
    /// A page in the dark window that the tests share which change nothing in it.
    ZrShowcasePage *darkPage(const QString &id);

    std::unique_ptr<ShowcaseScene> m_scene; // null while a test has one of its own
};

namespace {
QString dark()
{
    return QStringLiteral("dark");
}
QString light()
{
    return QStringLiteral("light");
}

QImage picture(ZrShowcasePage *page)
{
    return page->grabWhole().toImage();
}

// What a user works with; texts, pictures and frames around them need no name of their own.
bool isControl(const QAccessibleInterface &one)
{
    static const QList<QAccessible::Role> roles = {
        QAccessible::PushButton, QAccessible::Button,   QAccessible::CheckBox,     QAccessible::RadioButton,
        QAccessible::ComboBox,   QAccessible::SpinBox,  QAccessible::EditableText, QAccessible::Table,
        QAccessible::Tree,       QAccessible::List,     QAccessible::PageTabList,  QAccessible::PageTab,
        QAccessible::Slider,     QAccessible::MenuItem, QAccessible::PopupMenu,    QAccessible::Graphic,
        QAccessible::ButtonMenu, QAccessible::Dialog};
    const auto *const widget = qobject_cast<const QWidget *>(one.object());
    return roles.contains(one.role()) && !one.state().invisible && (!widget || widget->isVisible());
}

void collectNameless(QAccessibleInterface *one, const QString &path, QStringList *nameless)
{
    if (!one || !one->isValid())
        return;
    const QObject *const object = one->object();
    const QString here =
        object ? QStringLiteral("%1/%2#%3")
                     .arg(path, QString::fromLatin1(object->metaObject()->className()), object->objectName())
               : path;
    if (isControl(*one) && one->text(QAccessible::Name).trimmed().isEmpty())
        nameless->append(here);
    // Cells have their texts for names.
    if (one->tableInterface())
        return;
    for (int child = 0; child < one->childCount(); ++child)
        collectNameless(one->child(child), here, nameless);
}
} // namespace

void tst_ZrShowcasePages::initTestCase()
{
    ZrQuietPlatform::install();
}

void tst_ZrShowcasePages::addPages()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("title");
    const QList<ZrShowcaseEntry> entries = ZrShowcasePages::all();
    for (const ZrShowcaseEntry &entry : entries)
        QTest::newRow(qPrintable(entry.id)) << entry.id << entry.title;
}

ZrShowcasePage *tst_ZrShowcasePages::darkPage(const QString &id)
{
    if (!m_scene)
        m_scene = std::make_unique<ShowcaseScene>(dark());
    return m_scene->open(id);
}

void tst_ZrShowcasePages::theListKnowsWhatThePagesAre()
{
    QFETCH(QString, id);
    QFETCH(QString, title);
    const ZrShowcasePage *const page = darkPage(id);
    QVERIFY(m_scene->isReady());
    QVERIFY(page);
    QCOMPARE(page->id(), id);
    QCOMPARE(page->title(), title);
    QCOMPARE(page->accessibleName(), title);
}

void tst_ZrShowcasePages::noTwoPagesShareAnId()
{
    QSet<QString> ids;
    const QList<ZrShowcaseEntry> entries = ZrShowcasePages::all();
    for (const ZrShowcaseEntry &entry : entries)
        ids.insert(entry.id);
    QCOMPARE(ids.size(), entries.size());
}

void tst_ZrShowcasePages::aPageAfterASwitchIsThatOfAFreshStart()
{
    QFETCH(QString, id);
    m_scene.reset(); // there is one host in a process
    QImage freshDark;
    QImage switchedLight;
    {
        ShowcaseScene scene(dark());
        ZrShowcasePage *const page = scene.open(id);
        // Some widgets take a moment until they stand.
        QTRY_COMPARE(ShowcaseScene::difference(freshDark, freshDark = picture(page)), QString());
        scene.setSkin(light());
        QTRY_COMPARE(ShowcaseScene::difference(switchedLight, switchedLight = picture(page)), QString());
    }
    QVERIFY(switchedLight != freshDark);
    ShowcaseScene scene(light());
    ZrShowcasePage *const page = scene.open(id);
    QTRY_COMPARE(ShowcaseScene::difference(picture(page), switchedLight), QString());
    scene.setSkin(dark());
    QTRY_COMPARE(ShowcaseScene::difference(picture(page), freshDark), QString());
}

void tst_ZrShowcasePages::everyControlHasAName()
{
    QFETCH(QString, id);
    ZrShowcasePage *const page = darkPage(id);
    QStringList nameless;
    collectNameless(QAccessible::queryAccessibleInterface(page), QString(), &nameless);
    QVERIFY2(nameless.isEmpty(), qPrintable(nameless.join(QLatin1Char('\n'))));
}

void tst_ZrShowcasePages::nothingStandsOutsideThePage()
{
    QFETCH(QString, id);
    ZrShowcasePage *const page = darkPage(id);
    const auto *const content = page->findChild<QWidget *>(QStringLiteral("showcaseContent"));
    const QList<QWidget *> cells = content->findChildren<QWidget *>(QStringLiteral("showcaseCell"));
    QVERIFY(!cells.isEmpty());
    for (const QWidget *const cell : cells) {
        const QRect place(cell->mapTo(content, QPoint()), cell->size());
        QVERIFY2(content->rect().contains(place), qPrintable(cell->accessibleName()));
        const QList<QWidget *> shown = cell->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
        for (const QWidget *const widget : shown) {
            if (widget->isVisible() && !widget->geometry().isEmpty())
                QVERIFY2(
                    cell->rect().contains(widget->geometry()),
                    qPrintable(widget->accessibleName() + QLatin1String(widget->metaObject()->className())));
        }
    }
}

ZR_TEST_MAIN(tst_ZrShowcasePages)
#include "tst_zrshowcasepages.moc"
