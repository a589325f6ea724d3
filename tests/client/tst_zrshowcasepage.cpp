#include "ZrQuietPlatform.h"
#include "ZrReferenceHost.h"
#include "ZrShowcaseGrid.h"
#include "ZrShowcasePage.h"
#include "ZrTestMain.h"

#include <QtWidgets/QDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

/// A page: its header, its samples, its pictures of states.
class tst_ZrShowcasePage : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void theHeaderSaysWhatItIsFor();
    void aSampleIsShownUnderItsCaption();
    void aSampleKeepsItsOwnName();
    void aWindowBecomesAPlainChild();
    void nothingIsLeftOutWithAWarning();
    void aPictureHasTheState_data();
    void aPictureHasTheState();
    void thePointerIsOverWhatStandsInside();
    void theFocusOfTheUserStays();
    void aPictureIsTakenWhenThePageIsShown();
    void aPictureIsTakenAgainWhenTheSkinChanges();
    void theWholePageIsGrabbed();

private:
    QTemporaryDir m_folder;
    ZrReferenceHost m_host;
};

namespace {
using State = ZrShowcasePage::State;

/// Notes in which state it is painted.
class Probe : public QPushButton
{
    Q_OBJECT
public:
    struct Seen
    {
        int made = 0;
        bool underMouse = false;
        bool focused = false;
        bool down = false;
    };
    explicit Probe(Seen *seen)
        : m_seen(seen)
    {
        ++m_seen->made;
    }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        QPushButton::paintEvent(event);
        m_seen->underMouse = underMouse();
        m_seen->focused = hasFocus();
        m_seen->down = isDown();
    }

private:
    Seen *const m_seen; // not owned
};

std::unique_ptr<ZrShowcasePage> makePage()
{
    return std::make_unique<ZrShowcasePage>(QStringLiteral("probe"), QStringLiteral("ZrProbe"),
                                            QStringLiteral("Says what <b>it</b> is & does."));
}

void show(ZrShowcasePage *page)
{
    page->resize(800, 300);
    page->show();
    QVERIFY(QTest::qWaitForWindowExposed(page));
}

QList<QLabel *> captions(const ZrShowcasePage &page)
{
    return page.findChildren<QLabel *>(QStringLiteral("showcaseCaption"));
}
} // namespace

void tst_ZrShowcasePage::initTestCase()
{
    ZrQuietPlatform::install();
    ZrReferenceHost::Options options;
    options.configFolder = m_folder.path();
    options.skinRoot = QStringLiteral(ZR_SKINS);
    options.skinId = QStringLiteral("dark");
    QVERIFY2(m_host.start(options), qPrintable(m_host.errorText()));
}

void tst_ZrShowcasePage::theHeaderSaysWhatItIsFor()
{
    const auto page = makePage();
    QCOMPARE(page->objectName(), QStringLiteral("probe"));
    QCOMPARE(page->findChild<QLabel *>(QStringLiteral("showcaseTitle"))->text(), QStringLiteral("ZrProbe"));
    const auto *const purpose = page->findChild<QLabel *>(QStringLiteral("showcasePurpose"));
    QCOMPARE(purpose->text(), QStringLiteral("Says what <b>it</b> is & does."));
    QCOMPARE(purpose->textFormat(), Qt::PlainText);
}

void tst_ZrShowcasePage::aSampleIsShownUnderItsCaption()
{
    const auto page = makePage();
    auto *const edit = new QLineEdit;
    page->beginRow(QStringLiteral("Row"));
    page->addSample(QStringLiteral("Normal"), edit);
    auto *const button = new QPushButton(QStringLiteral("a"));
    button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    page->addSample(QStringLiteral("Other"), button);
    show(page.get());
    QCOMPARE(captions(*page).size(), 2);
    const QLabel *const caption = captions(*page).constFirst();
    QCOMPARE(caption->text(), QStringLiteral("Normal"));
    QVERIFY(edit->isVisible());
    QVERIFY(edit->y() >= caption->geometry().bottom());
    QCOMPARE(edit->x(), caption->x());
    QCOMPARE(edit->accessibleName(), QStringLiteral("Normal"));
    // One fills its column, the other keeps its size; both begin at the same height.
    QCOMPARE(edit->width(), ZrShowcaseGrid::LeastPx);
    QCOMPARE(button->width(), button->sizeHint().width());
    QCOMPARE(button->mapTo(page.get(), QPoint()).y(), edit->mapTo(page.get(), QPoint()).y());
}

void tst_ZrShowcasePage::aSampleKeepsItsOwnName()
{
    const auto page = makePage();
    auto *const edit = new QLineEdit;
    edit->setAccessibleName(QStringLiteral("Amount"));
    page->addSample(QStringLiteral("Normal"), edit);
    QCOMPARE(edit->accessibleName(), QStringLiteral("Amount"));
}

void tst_ZrShowcasePage::aWindowBecomesAPlainChild()
{
    const auto page = makePage();
    auto *const dialog = new QDialog(nullptr, Qt::Window | Qt::FramelessWindowHint);
    dialog->setMinimumSize(100, 50);
    page->addSample(QStringLiteral("Dialog"), dialog);
    show(page.get());
    QVERIFY(!dialog->isWindow());
    QVERIFY(dialog->isVisible());
    QCOMPARE(dialog->window(), page.get());
}

void tst_ZrShowcasePage::nothingIsLeftOutWithAWarning()
{
    const auto page = makePage();
    QTest::ignoreMessage(QtWarningMsg, R"(ZrShowcasePage::addSample "probe" "Normal" is null)");
    page->addSample(QStringLiteral("Normal"), nullptr);
    QVERIFY(captions(*page).isEmpty());
    page->addPicture(
        QStringLiteral("Hover"), [] { return nullptr; }, State::Hover);
    QTest::ignoreMessage(QtWarningMsg, R"(ZrShowcasePicture::take "Hover" is null)");
    show(page.get());
}

void tst_ZrShowcasePage::aPictureHasTheState_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<bool>("underMouse");
    QTest::addColumn<bool>("focused");
    QTest::addColumn<bool>("down");
    QTest::newRow("hover") << int(State::Hover) << true << false << false;
    QTest::newRow("focus") << int(State::Focus) << false << true << false;
    QTest::newRow("pressed") << int(State::Pressed) << true << false << true;
}

void tst_ZrShowcasePage::aPictureHasTheState()
{
    QFETCH(int, state);
    Probe::Seen seen;
    const auto page = makePage();
    page->addPicture(
        QStringLiteral("State"), [&seen] { return new Probe(&seen); }, State(state));
    show(page.get());
    QTEST(seen.underMouse, "underMouse");
    QTEST(seen.focused, "focused");
    QTEST(seen.down, "down");
    const auto *const picture = captions(*page).constFirst()->parentWidget()->findChild<QLabel *>(
        QString(), Qt::FindDirectChildrenOnly);
    QVERIFY(picture);
}

void tst_ZrShowcasePage::thePointerIsOverWhatStandsInside()
{
    Probe::Seen seen;
    const auto page = makePage();
    const auto make = [&seen] {
        auto *const outer = new QWidget;
        auto *const layout = new QVBoxLayout(outer);
        layout->addWidget(new Probe(&seen));
        return outer;
    };
    page->addPicture(QStringLiteral("Hover"), make, State::Hover);
    page->addPicture(QStringLiteral("Focus"), make, State::Focus);
    show(page.get());
    QVERIFY(seen.focused); // the second one
    QCOMPARE(seen.made, 2);
}

void tst_ZrShowcasePage::theFocusOfTheUserStays()
{
    const auto page = makePage();
    Probe::Seen seen;
    auto *const edit = new QLineEdit;
    page->addSample(QStringLiteral("Normal"), edit);
    page->addPicture(
        QStringLiteral("Focus"), [&seen] { return new Probe(&seen); }, State::Focus);
    show(page.get());
    page->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(page.get()));
    edit->setFocus();
    QSignalSpy finished(edit, &QLineEdit::editingFinished); // told when the focus leaves
    QVERIFY(m_host.setSkin(QStringLiteral("light")));
    QVERIFY(seen.focused);
    QVERIFY(edit->hasFocus());
    QCOMPARE(finished.size(), 0);
    QVERIFY(m_host.setSkin(QStringLiteral("dark")));
}

void tst_ZrShowcasePage::aPictureIsTakenWhenThePageIsShown()
{
    Probe::Seen seen;
    const auto page = makePage();
    page->addPicture(
        QStringLiteral("Hover"), [&seen] { return new Probe(&seen); }, State::Hover);
    QCOMPARE(seen.made, 0);
    show(page.get());
    QCOMPARE(seen.made, 1);
    page->addPicture(
        QStringLiteral("Late"), [&seen] { return new Probe(&seen); }, State::Hover);
    QCOMPARE(seen.made, 2);
    page->hide();
    page->show();
    QCOMPARE(seen.made, 2);
}

void tst_ZrShowcasePage::aPictureIsTakenAgainWhenTheSkinChanges()
{
    Probe::Seen seen;
    const auto page = makePage();
    page->addPicture(
        QStringLiteral("Hover"), [&seen] { return new Probe(&seen); }, State::Hover);
    show(page.get());
    QVERIFY(m_host.setSkin(QStringLiteral("light")));
    QCOMPARE(seen.made, 2);
    page->hide();
    QVERIFY(m_host.setSkin(QStringLiteral("dark")));
    QCOMPARE(seen.made, 2);
    page->show();
    QCOMPARE(seen.made, 3);
}

void tst_ZrShowcasePage::theWholePageIsGrabbed()
{
    const auto page = makePage();
    for (int i = 0; i < 10; ++i) {
        page->beginRow(QStringLiteral("Row"));
        page->addSample(QStringLiteral("Normal"), new QLineEdit);
    }
    show(page.get());
    const QPixmap whole = page->grabWhole();
    QVERIFY(whole.height() > 2 * page->height());
    QVERIFY(whole.width() <= page->width());
}

ZR_TEST_MAIN(tst_ZrShowcasePage)
#include "tst_zrshowcasepage.moc"
