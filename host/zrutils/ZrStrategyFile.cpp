#include "zrutils/ZrStrategyFile.h"

#include "zrutils/ZrJsonText.h"
#include "zrutils/ZrStrategyFaults.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QJsonDocument>

namespace {
constexpr qint64 largest = 1024 * 1024; // bytes

/// Why the text is no document: the line when the toolkit tells it.
QString complaintAbout(const QByteArray &text)
{
    QJsonParseError problem;
    QJsonDocument::fromJson(text, &problem);
    const int line = text.left(problem.offset).count('\n') + 1;
    return QStringLiteral("line %1 is no JSON: %2").arg(line).arg(problem.errorString());
}

QByteArray contentOf(const QString &path, ZrStrategyFaults *faults)
{
    QFile file(path);
    // A pipe or a device could be read without end.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        faults->refuse(QStringLiteral("there is no such file, or it cannot be read"));
        return QByteArray();
    }
    // One byte more than allowed, for a file that grows while it is read.
    QByteArray content = file.size() > largest ? QByteArray() : file.read(largest + 1);
    if (file.size() > largest || content.size() > largest) {
        faults->refuse(QStringLiteral("a description is no larger than a megabyte"));
        return QByteArray();
    }
    if (content.startsWith("\xEF\xBB\xBF"))
        content.remove(0, 3);
    return content;
}
} // namespace

QJsonObject ZrStrategyFile::read(const QString &path, ZrStrategyFaults *faults)
{
    const QByteArray content = contentOf(path, faults);
    if (faults->isRefused())
        return QJsonObject();
    const QString text = QString::fromUtf8(content);
    if (ZrJsonText::isTooDeep(text)) {
        faults->refuse(QStringLiteral("it is nested too deep"));
        return QJsonObject();
    }
    QJsonDocument document;
    if (!ZrJsonText::parse(text, document))
        faults->refuse(complaintAbout(text.toUtf8()));
    else if (!document.isObject())
        faults->refuse(QStringLiteral("it holds no JSON object"));
    return document.object();
}
