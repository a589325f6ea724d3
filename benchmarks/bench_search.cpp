// Finding one of 60,000 securities: a key press, from the event to the painted list, and taking a type's
// list.
#include "ZrBench.h"
#include "ZrBenchGrids.h"
#include "ZrBenchLazy.h"
#include "ZrSearchBox.h"

#include <QtCore/QFile>
#include <QtCore/QStringListModel>
#include <QtGui/QKeyEvent>
#include <QtGui/QRegExpValidator>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCompleter>
#include <zrbusinessdata/CBusinessDataBase.h>
#include <zrdatabase/ZrDataStore.h>
#include <zrdefine/VexlorFields.h>

#include <algorithm>
#include <numeric>
#include <random>

namespace {
constexpr int Families = 60; // of a thousand codes each
constexpr int CodesEach = 1000;
constexpr double MostKeyMs = 5;
constexpr double MostTypeMs = 150;
// Codes as they are typed, half and whole; a code and a search key that nobody has; letters of search keys.
const char *const Typed[] = {"60512", "00", "5999", "30012", "abc", "zz9", "9z", "qa", "k"};

QVariantMap security(int index, std::mt19937 &random)
{
    std::uniform_int_distribution<int> letter('A', 'Z');
    std::uniform_int_distribution<int> ideograph(0x4e00, 0x9fa5);
    const QString code = QStringLiteral("%1").arg((index % Families) * 16 * CodesEach + index / Families, 6,
                                                  10, QLatin1Char('0'));
    QString name;
    QString key;
    for (int i = 0; i < 4; ++i) {
        name.append(QChar(ushort(ideograph(random))));
        key.append(QChar(ushort(letter(random))));
    }
    return {
        {Vexlor_Fields::Security::symbol, code + (index % 2 ? QLatin1String(".SH") : QLatin1String(".SZ"))},
        {Vexlor_Fields::Security::chineseName, name},
        {QStringLiteral("SearchKey"), key},
        {QStringLiteral("SecurityType"), QStringLiteral("Stock")}};
}

QList<QVariantMap> securities()
{
    std::mt19937 random(60000);
    QList<QVariantMap> list;
    for (int index = 0; index < Families * CodesEach; ++index)
        list.append(security(index, random));
    return list;
}

QString listSheet()
{
    QFile file(QStringLiteral(ZR_BENCH_SKINS "/dark/system/zrwidget/CCompleter.css"));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no style sheet");
    return QString::fromUtf8(file.readAll());
}

/// One field on a window of its own, and the list that it opens.
class FieldOnAWindow
{
public:
    void show(QLineEdit *field, QCompleter *completer)
    {
        m_field = field;
        m_popup = completer->popup();
        m_popup->setStyleSheet(listSheet());
        m_field->setGeometry(20, 20, 120, 28);
        m_window.setGeometry(40, 40, 500, 500);
        m_window.show();
        ZrBenchStopwatch::drain();
    }

    QWidget *window() { return &m_window; }

    /// ms of each key.
    QVector<double> keysMs()
    {
        QApplication::setActiveWindow(&m_window);
        m_field->setFocus();
        QVector<double> times;
        for (const char *const text : Typed) {
            for (const char *key = text; *key; ++key)
                times.append(1000 * pressSeconds(*key));
            m_popup->hide();
            m_field->clear();
            ZrBenchStopwatch::drain();
        }
        return times;
    }

private:
    double pressSeconds(char key) const
    {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, QString(QLatin1Char(key)));
        // An open list is what the platform gives the keys to.
        QWidget *const receiver = m_popup->isVisible() ? static_cast<QWidget *>(m_popup) : m_field;
        return secondsOf([&] {
            QCoreApplication::sendEvent(receiver, &event);
            ZrBenchStopwatch::drain();
        });
    }

    QWidget m_window;
    QLineEdit *m_field = nullptr;         // the window's
    QAbstractItemView *m_popup = nullptr; // its completer's
};

class SearchFixture
{
public:
    SearchFixture()
    {
        ZrDataStore::setSecurities(securities());
        m_box = new ZrSearchBox(m_ours.window());
        m_box->setSearchMode(2);
        m_box->setSecurityType(QString());
        m_ours.show(m_box, m_box->findChild<QCompleter *>());
        showPeer();
    }
    ~SearchFixture() { ZrDataStore::close(); }

    QVector<double> ourKeysMs() { return m_ours.keysMs(); }
    QVector<double> peerKeysMs() { return m_peer.keysMs(); }
    double typeMs()
    {
        return 1000 * secondsOf([this] { m_box->setSecurityType(QString()); });
    }

private:
    // What a user would write: the completer's own filter over the same list.
    void showPeer()
    {
        auto *const field = new QLineEdit(m_peer.window());
        auto *const validator = qobject_cast<const QRegExpValidator *>(m_box->validator());
        field->setValidator(new QRegExpValidator(validator->regExp(), field));
        const QStringList list = CBusinessDataBase::GetInstance()->GetAllSymbolByType(
            QString(), QString(), QString(), false, QStringList());
        auto *const completer = new QCompleter(list, field);
        completer->setFilterMode(Qt::MatchContains);
        completer->setCaseSensitivity(Qt::CaseInsensitive);
        field->setCompleter(completer);
        m_peer.show(field, completer);
    }

    FieldOnAWindow m_ours;
    FieldOnAWindow m_peer;
    ZrSearchBox *m_box = nullptr; // our window's
};

double meanOf(const QVector<double> &values)
{
    return std::accumulate(values.begin(), values.end(), 0.0) / values.size();
}

double largestOf(const QVector<double> &values)
{
    return *std::max_element(values.begin(), values.end());
}
} // namespace

ZrBenchCases searchBenches()
{
    const auto maker = zrLazily<SearchFixture>([] { return std::make_shared<SearchFixture>(); });
    const ZrBenchRow key = {"search/key_60k", "ms", false, "QCompleter, contains", "5 ms", 0.2, 1.0};
    const ZrBenchRow slowest = {
        "search/slowest_key_60k", "ms", false, "QCompleter, contains", "5 ms", 0.2, 1.0};
    const ZrBenchRow type = {"search/set_type_60k", "ms", false, {}, "150 ms", ZrBenchRow::None, 1.0};
    const auto keySides = [maker](double (*of)(const QVector<double> &)) {
        const auto fixture = maker();
        return ZrBenchSides{[=] { return of(fixture->ourKeysMs()); },
                            [=] { return of(fixture->peerKeysMs()); }, [] { return MostKeyMs; }};
    };
    return {{key, [=] { return keySides(meanOf); }},
            {slowest, [=] { return keySides(largestOf); }},
            {type, [=] {
                 const auto fixture = maker();
                 return ZrBenchSides{[=] { return fixture->typeMs(); }, {}, [] { return MostTypeMs; }};
             }}};
}
