#include "ZrPluginSwitches.h"

#include <QtCore/QDebug>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QSaveFile>

namespace {
const QLatin1String offKey("off");
const QLatin1String endedWord("ended a start");
const QLatin1String userWord("user");
} // namespace

void ZrPluginSwitches::open(const QString &folder)
{
    m_off.clear();
    m_path = folder.isEmpty() ? QString() : QDir(folder).filePath(QStringLiteral("plugins.json"));
    read();
}

ZrPluginReason ZrPluginSwitches::reason(const QString &pluginId) const
{
    return m_off.value(pluginId, ZrPluginReason::None);
}

bool ZrPluginSwitches::set(const QString &pluginId, ZrPluginReason reason)
{
    read();
    if (reason == ZrPluginReason::None)
        m_off.remove(pluginId);
    else if (m_off.contains(pluginId) || m_off.size() < maxIds)
        m_off.insert(pluginId, reason);
    else
        return false;
    return write();
}

void ZrPluginSwitches::read()
{
    QFile file(m_path);
    if (m_path.isEmpty() || !file.exists())
        return;
    QJsonParseError error{0, QJsonParseError::UnterminatedObject};
    QJsonDocument document;
    if (file.open(QIODevice::ReadOnly) && file.size() <= maxBytes)
        document = QJsonDocument::fromJson(file.read(maxBytes), &error);
    if (error.error != QJsonParseError::NoError || !document.isObject()) {
        qWarning() << "ZrPluginSwitches::read" << m_path << "holds no switches";
        return;
    }
    m_off.clear();
    const QJsonObject off = document.object().value(offKey).toObject();
    for (auto it = off.constBegin(); it != off.constEnd() && m_off.size() < maxIds; ++it) {
        const bool isEnded = it.value().toString() == endedWord;
        m_off.insert(it.key(), isEnded ? ZrPluginReason::EndedLastStart : ZrPluginReason::SwitchedOff);
    }
}

bool ZrPluginSwitches::write() const
{
    if (m_path.isEmpty())
        return true;
    QJsonObject off;
    for (auto it = m_off.cbegin(); it != m_off.cend(); ++it)
        off.insert(it.key(), it.value() == ZrPluginReason::EndedLastStart ? endedWord : userWord);
    const QByteArray text = QJsonDocument(QJsonObject{{offKey, off}}).toJson();
    QSaveFile file(m_path);
    return QDir().mkpath(QFileInfo(m_path).absolutePath()) && file.open(QIODevice::WriteOnly) &&
           file.write(text) == text.size() && file.commit();
}
