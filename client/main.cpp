#include "ZrClientApplication.h"
#include "ZrLanguage.h"
#include "ZrPluginCatalogue.h"
#include "ZrPluginTexts.h"
#include "ZrQuietPlatform.h"
#include "ZrWorkstation.h"

#include <QtCore/QDir>
#include <QtCore/QLoggingCategory>
#include <QtCore/QStandardPaths>

#include <cstdio>

namespace {
constexpr int BadInput = 2;
constexpr int BadOutput = 1;

void complain(const QString &sentence)
{
    std::fprintf(stderr, "zrworkstation: %s\n", qPrintable(sentence));
}

// Without a display there is nothing to show on: the toolkit would end the program.
void chooseDisplay(bool headless)
{
    const bool hasDisplay =
        !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
    if (headless || (!hasDisplay && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

// To be called before anything asks for the display or the time.
void hastenToolkit()
{
    // The toolkit waits so many milliseconds before each frame for more to paint; the inbox gathers already.
    if (!qEnvironmentVariableIsSet("QT_QPA_UPDATE_IDLE_TIME"))
        qputenv("QT_QPA_UPDATE_IDLE_TIME", "0");
    // Without this name the C library looks at the zone's file again for each time that a cell shows.
    if (!qEnvironmentVariableIsSet("TZ"))
        qputenv("TZ", ":/etc/localtime");
}

// Files lie beside an installed program, or in the sources of a built one.
QString firstFolder(const QStringList &folders)
{
    for (const QString &folder : folders) {
        if (QDir(folder).exists())
            return QDir::cleanPath(folder);
    }
    return QString();
}

ZrWorkstationPaths findPaths()
{
    const QString program = QCoreApplication::applicationDirPath();
    const QString shared = program + QStringLiteral("/../share/zrwidget");
    ZrWorkstationPaths paths;
    paths.skins = firstFolder({shared + QStringLiteral("/skin"), QStringLiteral(ZR_SOURCE_DIR "/skin")});
    paths.data = firstFolder({shared + QStringLiteral("/data"), QStringLiteral(ZR_SOURCE_DIR "/data")});
    paths.recordings = QStringList{firstFolder(
        {shared + QStringLiteral("/recordings"), QStringLiteral(ZR_SOURCE_DIR "/client/recordings")})};
    paths.plugins = firstFolder(
        {program + QStringLiteral("/" ZR_PLUGIN_PATH), program + QStringLiteral("/../lib/zrwidget/plugins")});
    return paths;
}

// Nothing is loaded, and no mark of an ended start is taken away: that is the next start's.
int listPlugins(const ZrWorkstationOptions &options)
{
    ZrPluginCatalogue catalogue([](const QString &, const ZrPluginCatalogue::Maker &) {});
    ZrPluginCatalogue::Options files;
    files.folder = options.pluginFolder.isEmpty() ? findPaths().plugins : options.pluginFolder;
    files.manifest = options.pluginManifest;
    files.stateFolder = QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation);
    files.takeMarks = false;
    const QString error = catalogue.scan(files);
    if (!error.isEmpty()) {
        complain(error);
        return BadInput;
    }
    std::fputs(qPrintable(ZrPluginTexts::table(catalogue.entries())), stdout);
    return 0;
}

int run(const ZrWorkstationOptions &options, ZrClientApplication *app)
{
    ZrWorkstation workstation(options, findPaths(), app);
    QString error = workstation.start();
    if (!error.isEmpty()) {
        complain(error);
        return BadInput;
    }
    const QStringList notices = ZrPluginTexts::notices(*workstation.plugins());
    for (const QString &notice : notices)
        complain(notice);
    // Queued: a window may close, or a feed end, before the event loop has begun.
    QObject::connect(&workstation, &ZrWorkstation::signalDone, app, &QCoreApplication::quit,
                     Qt::QueuedConnection);
    QCoreApplication::exec();
    error = workstation.finish();
    if (!workstation.problems().isEmpty())
        complain(QStringLiteral("%1 lines of the recording were skipped:\n%2")
                     .arg(workstation.report().linesSkipped)
                     .arg(workstation.problems()));
    if (!error.isEmpty())
        complain(error);
    return error.isEmpty() ? 0 : BadOutput;
}
} // namespace

int main(int argc, char *argv[])
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    ZrWorkstationOptions options;
    QString error;
    if (!ZrWorkstationOptions::parse(arguments, &options, &error)) {
        complain(error);
        return BadInput;
    }
    chooseDisplay(options.headless || options.help || options.listPlugins);
    hastenToolkit();
    // A presenter logs each message that it sorts: far too many for a live feed, unless somebody asks.
    if (!qEnvironmentVariableIsSet("QT_LOGGING_RULES"))
        QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    ZrClientApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("zrworkstation"));
    if (options.help) {
        std::fputs(qPrintable(ZrWorkstationOptions::helpText()), stdout);
        return 0;
    }
    ZrLanguage::install(&app, options.language);
    if (options.listPlugins)
        return listPlugins(options);
    options.headless = QGuiApplication::platformName() == QLatin1String("offscreen");
    if (options.headless)
        ZrQuietPlatform::install();
    return run(options, &app);
}
