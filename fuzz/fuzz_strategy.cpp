// A strategy description of any bytes.
#include "zrdefine/Constants.h"
#include "zrutils/ZrCommonUtils.h"

#include <QtCore/QFile>
#include <QtCore/QSet>
#include <QtCore/QTemporaryDir>

namespace {
void check(bool good, const char *what)
{
    if (!good)
        qt_assert(what, __FILE__, __LINE__);
}

/// Ids that occur once, with dependencies that stay among them.
void checkParameters(const QList<QVariantMap> &records)
{
    QSet<QString> ids;
    for (const QVariantMap &record : records) {
        const QString id = record.value(Constants::STRATEGYPARAM_PARAMID).toString();
        check(!id.isEmpty() && !ids.contains(id), "each parameter has an id of its own");
        check(record.contains(Constants::STRATEGYPARAM_WIDGETTYPE), "each parameter has its editor");
        check(!record.contains(QStringLiteral("SecurityLink")), "the reader's own mark is gone");
        ids.insert(id);
    }
}

void quiet(QtMsgType, const QMessageLogContext &, const QString &line)
{
    check(!line.contains(QLatin1Char('\n')), "a fault is one line");
}
} // namespace

// The toolkit's JSON reader loses the earlier one of two objects or lists under one key. Whose leak it is
// shows only deeper in the stack than the fast unwinder sees.
extern "C" const char *__lsan_default_suppressions()
{
    return "leak:QJsonDocument::fromJson";
}

extern "C" const char *__asan_default_options()
{
    return "fast_unwind_on_malloc=0";
}

extern "C" int LLVMFuzzerTestOneInput(const quint8 *data, size_t size)
{
    static const QTemporaryDir folder;
    qInstallMessageHandler(quiet);
    const QString path = folder.filePath(QStringLiteral("strategy.json"));
    QFile file(path);
    const auto length = qint64(size);
    check(file.open(QIODevice::WriteOnly) &&
              file.write(reinterpret_cast<const char *>(data), length) == length,
          "the input is written");
    file.close();
    QList<QVariantMap> basic, initial, running, results, links;
    QVariantMap strategy, settings;
    const int code = ZrCommonUtils::praseAlgoParamJsonFile(path, basic, initial, running, results, links,
                                                           strategy, settings);
    check(code == 0 || (code == -1 && basic.isEmpty() && initial.isEmpty() && settings.isEmpty()),
          "a refused file leaves nothing");
    checkParameters(basic);
    checkParameters(running);
    checkParameters(results);
    for (const QVariantMap &table : qAsConst(initial)) {
        QList<QVariantMap> columns;
        for (const QVariant &column :
             table.value(Constants::STRATEGYPARAM_INITIALPARAMVIEWPARAMLIST).toList())
            columns.append(column.toMap());
        check(!columns.isEmpty(), "a table has columns");
        checkParameters(columns);
    }
    return 0;
}
