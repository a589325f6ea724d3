// A feed description and the files that it tells, of any bytes.
//
// The input holds the description, then the files a.csv and b.csv; a line "====" parts them.
#include "ZrFeedDescriptionReader.h"
#include "ZrFeedMessages.h"
#include "ZrRecordingSource.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

namespace {
constexpr int MostLevels = 50;

void check(bool good, const char *what)
{
    if (!good)
        qt_assert(what, __FILE__, __LINE__);
}

// The bytes up to the next parting line, which goes too.
QByteArray takePart(QByteArray *input)
{
    const QByteArray part("\n====\n");
    const int end = input->indexOf(part);
    const QByteArray result = end < 0 ? *input : input->left(end);
    *input = end < 0 ? QByteArray() : input->mid(end + part.size());
    return result;
}

void write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    check(file.open(QIODevice::WriteOnly) && file.write(content) == content.size(), "the input is written");
}

void checkEvent(const ZrFeedEvent &event)
{
    check(event.kind != ZrFeedKind::Ignore, "what is to be ignored is no event");
    check(!event.symbol.isEmpty(), "each event has its security");
    check(!event.hasQuantity || !(event.quantity < ZrDecimal()), "no quantity is below zero");
    check(event.asks.size() <= MostLevels && event.bids.size() <= MostLevels, "levels are bounded");
}

void play(const ZrFeedDescription &description)
{
    ZrRecordingSource source(description);
    if (!source.open().isEmpty())
        return;
    ZrFeedMessages messages(source.zone(), {});
    QList<ZrFeedMessage> out;
    ZrFeedEvent event;
    while (source.next(&event)) {
        checkEvent(event);
        out.clear();
        messages.append(event, &out);
    }
    check(source.linesSkipped() == 0 || !source.problems().isEmpty(), "a skipped line is reported");
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
    const QString path = folder.filePath(QStringLiteral("feed.json"));
    QByteArray input(reinterpret_cast<const char *>(data), int(size));
    write(path, takePart(&input));
    write(folder.filePath(QStringLiteral("a.csv")), takePart(&input));
    write(folder.filePath(QStringLiteral("b.csv")), input);
    ZrFeedDescription description;
    QString error;
    const bool good = ZrFeedDescriptionReader::read(path, &description, &error);
    check(good == error.isEmpty(), "a refused description has its sentence, a good one has none");
    // Other files of this machine are none of the input's.
    for (const ZrFeedFile &file : qAsConst(description.files)) {
        if (!file.path.startsWith(folder.path() + QLatin1Char('/')))
            return 0;
    }
    if (good)
        play(description);
    return 0;
}
