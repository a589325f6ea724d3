#include "ZrFeedDescriptionReader.h"

#include "ZrFeedFileFields.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>

namespace {
constexpr qint64 MaxSize = 1024 * 1024;
constexpr int MaxFiles = 256;

bool readJson(const QString &path, QJsonObject *object, QString *error)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        *error = QStringLiteral("there is no such file, or it cannot be read");
        return false;
    }
    if (file.size() > MaxSize) {
        *error = QStringLiteral("a description is no larger than a megabyte");
        return false;
    }
    QJsonParseError problem;
    QByteArray text = file.readAll();
    if (text.startsWith("\xEF\xBB\xBF"))
        text.remove(0, 3);
    const QJsonDocument document = QJsonDocument::fromJson(text, &problem);
    if (problem.error != QJsonParseError::NoError) {
        const int line = text.left(problem.offset).count('\n') + 1;
        *error = QStringLiteral("line %1 is no JSON: %2").arg(line).arg(problem.errorString());
        return false;
    }
    *object = document.object();
    if (object->isEmpty())
        *error = QStringLiteral("it holds no JSON object");
    return error->isEmpty();
}

// The day and the zone that clock times belong to.
void readDay(ZrJsonFields *fields, ZrFeedTime *time)
{
    const QString date = fields->text(QStringLiteral("date"));
    if (!date.isEmpty())
        time->date = QDate::fromString(date, Qt::ISODate);
    if (!ZrFeedTime::fits(time->date))
        fields->complain(QStringLiteral("date"), QStringLiteral("a day such as \"2023-02-01\" is wanted"));
    const QString zone = fields->text(QStringLiteral("timeZone"));
    if (!zone.isEmpty())
        time->zone = QTimeZone(zone.toLatin1());
    if (!time->zone.isValid())
        fields->complain(QStringLiteral("timeZone"),
                         QStringLiteral("there is no time zone \"%1\"").arg(zone.left(60)));
}

// What "defaults" says holds for each file that does not say otherwise.
QJsonObject merged(const QJsonObject &defaults, const QJsonObject &own)
{
    QJsonObject result = defaults;
    for (auto it = own.constBegin(); it != own.constEnd(); ++it)
        result.insert(it.key(), it.value());
    return result;
}

int indexOfPath(const ZrFeedDescription &description, const QString &path)
{
    for (int i = 0; i < description.files.size(); ++i) {
        if (description.files.at(i).path == path)
            return i;
    }
    return -1;
}

void readFiles(ZrJsonFields *fields, const ZrFeedTime &day, ZrFeedDescription *description)
{
    const QJsonArray files = fields->value(QStringLiteral("files")).toArray();
    const QJsonObject defaults = fields->object(QStringLiteral("defaults"));
    if (files.isEmpty() || files.size() > MaxFiles)
        fields->complain(QStringLiteral("files"),
                         QStringLiteral("a list of 1 to %1 files is wanted").arg(MaxFiles));
    for (int i = 0; i < files.size() && !fields->failed(); ++i) {
        const QString where = QStringLiteral("files[%1]").arg(i);
        if (!files.at(i).isObject())
            fields->complain(where, QStringLiteral("an object is wanted"));
        ZrFeedFileFields reader(merged(defaults, files.at(i).toObject()), where, fields->error());
        ZrFeedFile file = reader.read();
        file.time.date = day.date;
        file.time.zone = day.zone;
        file.time.prepare();
        if (!reader.alignedPath().isEmpty()) {
            file.alignedWith = indexOfPath(*description, reader.alignedPath());
            if (file.alignedWith < 0 || description->files.at(file.alignedWith).alignedWith >= 0)
                fields->complain(where + QStringLiteral(".time.sameRowAs"),
                                 QStringLiteral("no file before this one is \"%1\" and has times of its own")
                                     .arg(reader.alignedPath().left(200)));
        }
        description->files.append(file);
    }
}
} // namespace

bool ZrFeedDescriptionReader::read(const QString &path, ZrFeedDescription *description, QString *error)
{
    QString problem;
    QJsonObject object;
    *description = ZrFeedDescription();
    if (readJson(path, &object, &problem)) {
        ZrJsonFields fields(object, QString(), &problem);
        ZrFeedTime day;
        description->name = fields.text(QStringLiteral("name"), QFileInfo(path).completeBaseName());
        readDay(&fields, &day);
        readFiles(&fields, day, description);
        fields.finish();
    }
    if (!problem.isEmpty()) {
        *error = QStringLiteral("feed description %1: %2").arg(path, problem);
        return false;
    }
    const QDir folder = QFileInfo(path).absoluteDir();
    for (ZrFeedFile &file : description->files)
        file.path = QDir::cleanPath(folder.absoluteFilePath(file.path));
    return true;
}
