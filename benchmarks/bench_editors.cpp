// A key press in a field, without the paint that follows it.
#include "ZrBench.h"
#include "ZrBenchGrids.h"
#include "ZrBenchLazy.h"
#include "ZrMoneyQtyLineEdit.h"

#include <QtCore/QFile>
#include <QtGui/QKeyEvent>
#include <QtGui/QRegExpValidator>
#include <QtWidgets/QApplication>
#include <QtWidgets/QVBoxLayout>

namespace {
constexpr int Rounds = 40;
constexpr double MostUs = 1000; // what a user may wait for a key

// The workstation's sheet: the fields and their tool tips are dressed as users see them.
QString windowSheet()
{
    QFile file(QStringLiteral(ZR_BENCH_WINDOW_SHEET));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

class EditorFixture
{
public:
    EditorFixture()
        : m_ours(new ZrMoneyQtyLineEdit)
        , m_peer(new QLineEdit)
    {
        const auto *const validator = qobject_cast<const QRegExpValidator *>(m_ours->validator());
        m_peer->setValidator(new QRegExpValidator(validator->regExp(), m_peer));
        auto *const column = new QVBoxLayout(&m_window);
        column->addWidget(m_ours);
        column->addWidget(m_peer);
        m_window.setStyleSheet(windowSheet());
        m_window.show();
        QApplication::setActiveWindow(&m_window);
        ZrBenchStopwatch::drain();
    }
    double ourUs() const { return keyUs(m_ours); }
    double peerUs() const { return keyUs(m_peer); }
    // The key that brings the tool tip up.
    double ourFirstUs() const
    {
        m_ours->setFocus();
        double seconds = 0;
        for (int round = 0; round < Rounds; ++round) {
            m_ours->clear();
            QEvent away(QEvent::WindowDeactivate); // ends a tool tip at once
            QCoreApplication::sendEvent(m_peer, &away);
            ZrBenchStopwatch::drain();
            seconds += pressSeconds(m_ours, Qt::Key_1, QStringLiteral("1"));
        }
        return 1e6 * seconds / Rounds;
    }

private:
    // An amount of the most digits is typed and taken back, again and again.
    static double keyUs(QLineEdit *edit)
    {
        edit->setFocus();
        const QByteArray amount("1234567890123.456");
        double seconds = 0;
        for (int round = 0; round < Rounds; ++round) {
            for (const char key : amount)
                seconds += pressSeconds(edit, key, QString(QLatin1Char(key)));
            for (int i = 0; i < amount.size(); ++i)
                seconds += pressSeconds(edit, Qt::Key_Backspace, QString());
        }
        return 1e6 * seconds / (2.0 * Rounds * amount.size());
    }

    static double pressSeconds(QLineEdit *edit, int key, const QString &text)
    {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
        const double seconds = secondsOf([&] { QCoreApplication::sendEvent(edit, &event); });
        ZrBenchStopwatch::drain();
        return seconds;
    }

    QWidget m_window;
    ZrMoneyQtyLineEdit *const m_ours; // the window's
    QLineEdit *const m_peer;          // the window's
};
} // namespace

ZrBenchCases editorBenches()
{
    const auto maker = zrLazily<EditorFixture>([] { return std::make_shared<EditorFixture>(); });
    const ZrBenchRow key = {"editors/money_key", "us", false, "QLineEdit, same validator", "1 ms", 3.0, 1.0};
    const ZrBenchRow first = {"editors/money_first_key", "us", false, {}, "1 ms", ZrBenchRow::None, 1.0};
    const auto most = [] { return MostUs; };
    return {
        {key,
         [=] {
             const auto fixture = maker();
             return ZrBenchSides{[=] { return fixture->ourUs(); }, [=] { return fixture->peerUs(); }, most};
         }},
        {first, [=] {
             const auto fixture = maker();
             return ZrBenchSides{[=] { return fixture->ourFirstUs(); }, {}, most};
         }}};
}
