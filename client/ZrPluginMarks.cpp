#include "ZrPluginMarks.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDebug>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QSaveFile>
#include <QtCore/QSysInfo>

namespace {
const QLatin1String pidKey("pid");
const QLatin1String startKey("processStart");
const QLatin1String machineKey("machine");
const QLatin1String pluginsKey("plugins");
constexpr int maxIdLength = 100;

// Numbers of processes are used again; together with the time of its start one stands for a process.
QString startOfProcess(qint64 pid)
{
    constexpr int startField = 19; // counted behind the program's name, which may hold blanks and brackets
    QFile file(QStringLiteral("/proc/%1/stat").arg(pid));
    if (!file.open(QIODevice::ReadOnly))
        return QString();
    const QByteArray line = file.readAll();
    return QString::fromLatin1(line.mid(line.lastIndexOf(')') + 2).split(' ').value(startField));
}

QString pathOf(const QString &folder, qint64 pid)
{
    return QDir(folder).filePath(QStringLiteral("plugin-start-%1.json").arg(pid));
}

QJsonObject readMark(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QJsonObject();
    return QJsonDocument::fromJson(file.read(ZrPluginMarks::maxBytes)).object();
}

bool mayLive(const QJsonObject &mark)
{
    const QString machine = mark.value(machineKey).toString();
    if (!machine.isEmpty() && machine != QSysInfo::machineHostName())
        return true;
    const QString start = mark.value(startKey).toString();
    return !start.isEmpty() && start == startOfProcess(qint64(mark.value(pidKey).toDouble()));
}
} // namespace

ZrPluginMarks::ZrPluginMarks(const QString &folder)
    : m_folder(folder)
{
}

ZrPluginMarks::~ZrPluginMarks()
{
    m_tried.clear();
    write();
}

void ZrPluginMarks::begin(const QString &pluginId)
{
    m_tried.append(pluginId);
    write();
}

void ZrPluginMarks::end()
{
    if (!m_tried.isEmpty())
        m_tried.removeLast();
    write();
}

void ZrPluginMarks::write()
{
    if (m_folder.isEmpty())
        return;
    const qint64 pid = QCoreApplication::applicationPid();
    const QString path = pathOf(m_folder, pid);
    if (m_tried.isEmpty()) {
        QFile::remove(path);
        return;
    }
    const QJsonObject mark = {{pidKey, double(pid)},
                              {startKey, startOfProcess(pid)},
                              {machineKey, QSysInfo::machineHostName()},
                              {pluginsKey, QJsonArray::fromStringList(m_tried)}};
    const QByteArray text = QJsonDocument(mark).toJson();
    QSaveFile file(path);
    const bool isWritten = QDir().mkpath(m_folder) && file.open(QIODevice::WriteOnly) &&
                           file.write(text) == text.size() && file.commit();
    if (!isWritten && !m_warned) {
        m_warned = true;
        qWarning() << "ZrPluginMarks::write" << path << file.errorString();
    }
}

QStringList ZrPluginMarks::takeLeft() const
{
    QStringList left;
    if (m_folder.isEmpty())
        return left;
    const QFileInfoList files =
        QDir(m_folder).entryInfoList({QStringLiteral("plugin-start-*.json")}, QDir::Files, QDir::Name);
    for (int i = 0; i < qMin(files.size(), maxFiles); ++i) {
        const QString path = files.at(i).absoluteFilePath();
        const QJsonObject mark = readMark(path);
        if (mayLive(mark))
            continue;
        // Who called the innermost was waiting for it.
        const QString id = mark.value(pluginsKey).toArray().last().toString();
        if (!id.isEmpty() && id.size() <= maxIdLength && !left.contains(id))
            left.append(id);
        QFile::remove(path);
    }
    return left;
}
