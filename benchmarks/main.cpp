#include "ZrBenchReport.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QFile>
#include <QtCore/QLoggingCategory>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTextStream>
#include <QtWidgets/QApplication>

#include <algorithm>

namespace {
constexpr int LeastRepetitions = 5;

ZrBenchCases allBenches()
{
    return gridUpdateBenches() + gridAppendBenches() + gridSortFilterBenches() + gridPaintBenches() +
           gridMemoryBenches() + mapBenches() + busBenches() + editorBenches() + comboBenches() +
           ladderBenches() + formBenches() + textBenches() + filterBenches() + searchBenches();
}

// A name that is asked for whole means that row only, anything else what holds it.
bool isChosen(const ZrBenchCases &all, const QString &name, const QString &filter)
{
    const bool isWhole = std::any_of(all.cbegin(), all.cend(), [&filter](const ZrBenchCase &benchCase) {
        return benchCase.row.name == filter;
    });
    return isWhole ? name == filter : name.contains(filter);
}

ZrBenchCases chosenBenches(const QStringList &filters)
{
    ZrBenchCases chosen;
    const ZrBenchCases all = allBenches();
    for (const ZrBenchCase &benchCase : all) {
        const bool isAny =
            std::any_of(filters.cbegin(), filters.cend(), [&all, &benchCase](const QString &filter) {
                return isChosen(all, benchCase.row.name, filter);
            });
        if (filters.isEmpty() || isAny)
            chosen.append(benchCase);
    }
    return chosen;
}

bool writeFile(const QString &name, const QByteArray &content)
{
    QFile file(name);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

QVector<ZrBenchResult> measured(const ZrBenchCases &cases, int repetitions, const QString &side)
{
    QTextStream out(stdout);
    out << ZrBenchReport::head() << Qt::endl;
    QVector<ZrBenchResult> results;
    for (const ZrBenchCase &benchCase : cases) {
        results.append(runBench(benchCase, repetitions, side));
        out << ZrBenchReport::line(results.constLast()) << Qt::endl;
    }
    return results;
}
} // namespace

int main(int argc, char *argv[])
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // Nothing of the user's: neither settings are read nor anything is left behind.
    const QTemporaryDir home;
    for (const char *name : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"})
        qputenv(name, home.path().toUtf8());
    QApplication app(argc, argv);
    QLoggingCategory::setFilterRules(
        QStringLiteral("*.debug=false\n*.info=false")); // writing lines isn't measured

    QCommandLineParser parser;
    parser.addHelpOption();
    const QCommandLineOption json(QStringLiteral("json"), QStringLiteral("Write the rows to a file."),
                                  QStringLiteral("file"));
    const QCommandLineOption list(QStringLiteral("list"), QStringLiteral("Only name the rows."));
    const QCommandLineOption repetitions(QStringLiteral("reps"),
                                         QStringLiteral("Repetitions of each row, at least 5."),
                                         QStringLiteral("count"), QString::number(LeastRepetitions));
    const QCommandLineOption side(QStringLiteral("side"),
                                  QStringLiteral("Measure one side only, for a profiler."),
                                  QStringLiteral("ours|peer|limit"));
    parser.addOptions({json, list, repetitions, side});
    parser.addPositionalArgument(QStringLiteral("filter"),
                                 QStringLiteral("Only rows whose name holds this."));
    parser.process(app);

    const ZrBenchCases cases = chosenBenches(parser.positionalArguments());
    if (cases.isEmpty()) {
        QTextStream(stderr) << "zrbench: no such row" << Qt::endl;
        return 1;
    }
    if (parser.isSet(list)) {
        for (const ZrBenchCase &benchCase : cases)
            QTextStream(stdout) << benchCase.row.name << Qt::endl;
        return 0;
    }
    const QVector<ZrBenchResult> results =
        measured(cases, qMax(LeastRepetitions, parser.value(repetitions).toInt()), parser.value(side));
    if (parser.isSet(json) && !writeFile(parser.value(json), ZrBenchReport::json(results))) {
        QTextStream(stderr) << "zrbench: can't write " << parser.value(json) << Qt::endl;
        return 1;
    }
    return 0;
}
