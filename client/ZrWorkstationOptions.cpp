#include "ZrWorkstationOptions.h"

#include <QtCore/QCommandLineParser>

#include <limits>

namespace {
constexpr int MostOpen = 20;

QString text(const char *latin)
{
    return QString::fromLatin1(latin);
}

void addFlags(QCommandLineParser *parser)
{
    parser->setApplicationDescription(
        text("Trading workstation: live plugins fed from a recording or a simulator."));
    parser->addOption({{text("h"), text("help")}, text("Shows this.")});
    parser->addOption({text("headless"), text("Runs without a display.")});
    parser->addOption({text("seconds"), text("Ends after so many seconds."), text("N")});
    parser->addOption(
        {text("shots"), text("Writes pictures of the window and its docks at the end."), text("DIR")});
    parser->addOption({text("report"), text("Writes a run report (JSON) at the end."), text("FILE")});
    parser->addOption({text("feed"),
                       text("\"simulator\", the name of a shipped recording, or a feed description."),
                       text("NAME|FILE")});
    parser->addOption({text("speed"), text("Plays so many times as fast; 0 as fast as can be."), text("X")});
    parser->addOption({text("rate"), text("Messages a second of the simulator."), text("N")});
    parser->addOption({text("seed"), text("Seed of the simulator."), text("N")});
    parser->addOption({text("rows"), text("Most rows the blotter keeps."), text("N")});
    parser->addOption({text("record"),
                       text("Writes what the feed does as a recording with this description."),
                       text("FILE")});
    parser->addOption({text("skin"), text("Skin to begin with."), text("ID")});
    parser->addOption(
        {text("faults"), text("Faults of the bus, such as drop=0.01,delay=5..20,seed=7."), text("SPEC")});
    parser->addOption({text("open"),
                       text("Plugins to open, one below the other; \"blotter,blotter\" otherwise."),
                       text("ID,ID...")});
    parser->addOption(
        {text("plugins"), text("Folder of plugin files; that of the program otherwise."), text("DIR")});
    parser->addOption({text("plugin-manifest"),
                       text("Loads only plugin files that this list of SHA-256 hashes names."),
                       text("FILE")});
    parser->addOption({text("no-plugins"), text("Starts without plugins.")});
    parser->addOption(
        {text("list-plugins"), text("Tells which plugin files there are, without running them.")});
    parser->addOption({text("lang"), text("zh_CN or en; that of the locale otherwise."), text("zh_CN|en")});
}

/// Reads values of flags and keeps the first complaint.
class Values
{
public:
    Values(const QCommandLineParser &parser, QString *error)
        : m_parser(parser)
        , m_error(error)
    {
    }

    void number(const char *flag, double least, double most, double *value)
    {
        bool good = false;
        const QString given = m_parser.value(text(flag));
        const double found = given.toDouble(&good);
        // Written so that a value that is no number falls out too.
        if (m_parser.isSet(text(flag)) && !(good && found >= least && found <= most))
            complain(flag, QStringLiteral("a number from %1 to %2").arg(least).arg(most), given);
        else if (good)
            *value = found;
    }

    template<typename Whole>
    void whole(const char *flag, qint64 least, qint64 most, Whole *value)
    {
        bool good = false;
        const QString given = m_parser.value(text(flag));
        const qint64 found = given.toLongLong(&good);
        if (m_parser.isSet(text(flag)) && !(good && found >= least && found <= most))
            complain(flag, QStringLiteral("a whole number from %1 to %2").arg(least).arg(most), given);
        else if (good)
            *value = Whole(found);
    }

    QString notEmpty(const char *flag)
    {
        const QString given = m_parser.value(text(flag));
        if (m_parser.isSet(text(flag)) && given.isEmpty())
            complain(flag, QStringLiteral("a value"), given);
        return given;
    }

    QStringList ids(const char *flag)
    {
        const QString given = notEmpty(flag);
        const QStringList found = given.isEmpty() ? QStringList() : given.split(QLatin1Char(','));
        if (found.contains(QString()) || found.size() > MostOpen)
            complain(flag, QStringLiteral("one to %1 IDs").arg(MostOpen), given);
        return found;
    }

    void complain(const char *flag, const QString &wanted, const QString &given)
    {
        if (m_error->isEmpty())
            *m_error = QStringLiteral("--%1 wants %2, not \"%3\".").arg(text(flag), wanted, given.left(100));
    }

private:
    const QCommandLineParser &m_parser;
    QString *const m_error; // not owned
};
} // namespace

bool ZrWorkstationOptions::parse(const QStringList &arguments, ZrWorkstationOptions *options, QString *error)
{
    QCommandLineParser parser;
    addFlags(&parser);
    error->clear();
    *options = ZrWorkstationOptions();
    if (!parser.parse(arguments))
        *error = parser.errorText();
    else if (!parser.positionalArguments().isEmpty())
        *error = QStringLiteral("\"%1\" is no flag; see --help.")
                     .arg(parser.positionalArguments().constFirst().left(100));
    Values values(parser, error);
    options->help = parser.isSet(text("help"));
    options->headless = parser.isSet(text("headless"));
    values.number("seconds", 0.1, 1e6, &options->seconds);
    values.number("speed", 0, 1e6, &options->speed);
    values.whole("rate", 1, 1000000, &options->rate);
    values.whole("seed", 0, std::numeric_limits<quint32>::max(), &options->seed);
    values.whole("rows", 1, 10000000, &options->maxRows);
    options->shotsFolder = values.notEmpty("shots");
    options->reportFile = values.notEmpty("report");
    options->feed = values.notEmpty("feed");
    options->recordFile = values.notEmpty("record");
    options->skin = values.notEmpty("skin");
    options->faults = values.notEmpty("faults");
    options->open = values.ids("open");
    options->pluginFolder = values.notEmpty("plugins");
    options->pluginManifest = values.notEmpty("plugin-manifest");
    options->noPlugins = parser.isSet(text("no-plugins"));
    options->listPlugins = parser.isSet(text("list-plugins"));
    options->language = values.notEmpty("lang");
    if (!options->language.isEmpty() && options->language != text("zh_CN") && options->language != text("en"))
        values.complain("lang", text("zh_CN or en"), options->language);
    return error->isEmpty();
}

QString ZrWorkstationOptions::helpText()
{
    QCommandLineParser parser;
    addFlags(&parser);
    return parser.helpText();
}
