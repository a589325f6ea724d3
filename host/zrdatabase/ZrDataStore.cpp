#include "zrdatabase/ZrDataStore.h"

#include "zrdatabase/ZrDatabaseFile.h"
#include "zrdatabase/ZrSeedReader.h"

#include <atomic>

namespace {
using Shared = std::shared_ptr<const ZrDataSnapshot>;

/// The one state. Readers take it by an atomic load, so that a look-up on a bus thread needs no lock of ours.
class State
{
public:
    static State &instance()
    {
        static State state;
        return state;
    }
    Shared load() const { return std::atomic_load(&m_snapshot); }
    void store(ZrDataContents contents, bool open)
    {
        std::atomic_store(&m_snapshot, Shared(std::make_shared<ZrDataSnapshot>(std::move(contents))));
        m_open.store(open);
    }
    bool isOpen() const { return m_open.load(); }

private:
    Shared m_snapshot = std::make_shared<ZrDataSnapshot>(ZrDataContents());
    std::atomic<bool> m_open{false};
};

void tell(QString *error, const QString &text)
{
    if (error)
        *error = text;
}
} // namespace

bool ZrDataStore::open(const ZrDataOptions &options, QString *error)
{
    ZrDataTables tables;
    QString reason;
    if (!ZrSeedReader::read(tables, reason) || !ZrDatabaseFile(options).load(tables, reason)) {
        tell(error, reason);
        return false;
    }
    State::instance().store(tables.contents(options.language), true);
    return true;
}

bool ZrDataStore::openSeed(const QString &language, QString *error)
{
    ZrDataTables tables;
    QString reason;
    if (!ZrSeedReader::read(tables, reason)) {
        tell(error, reason);
        return false;
    }
    State::instance().store(tables.contents(language), true);
    return true;
}

void ZrDataStore::close()
{
    State::instance().store(ZrDataContents(), false);
}

bool ZrDataStore::isOpen()
{
    return State::instance().isOpen();
}

std::shared_ptr<const ZrDataSnapshot> ZrDataStore::snapshot()
{
    return State::instance().load();
}

void ZrDataStore::setContents(const ZrDataContents &contents)
{
    State::instance().store(contents, true);
}

void ZrDataStore::setSection(const QString &section, const QMap<QString, QString> &texts)
{
    ZrDataContents contents = snapshot()->contents();
    contents.sections[section] = texts;
    setContents(contents);
}

void ZrDataStore::setSecurities(const QList<QVariantMap> &securities)
{
    ZrDataContents contents = snapshot()->contents();
    contents.securities = securities.toVector();
    setContents(contents);
}

void ZrDataStore::setAccounts(const QList<QVariantMap> &accounts)
{
    ZrDataContents contents = snapshot()->contents();
    contents.accounts = accounts.toVector();
    setContents(contents);
}

void ZrDataStore::setLoginType(const QString &type)
{
    ZrDataContents contents = snapshot()->contents();
    contents.loginType = type;
    setContents(contents);
}
