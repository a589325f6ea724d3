#include "ZrSkinProperties.h"

#include <QtCore/QDebug>
#include <QtCore/QFileInfo>
#include <QtCore/QSettings>
#include <QtCore/QStringList>

QString ZrSkinProperties::fileName(const QString &skinId, const QString &dir)
{
    // Put together, not filled in: a folder may hold a "%1" of its own.
    return QStringLiteral("ZRSkin:") + skinId + QLatin1Char('/') + dir + QStringLiteral("/basesetting.ini");
}

ZrSkinProperties::List ZrSkinProperties::read(const QString &fileName)
{
    List properties;
    const QFileInfo info(fileName);
    if (!info.isFile())
        return properties;
    if (info.size() > maxBytes) {
        qWarning() << "ZrSkinProperties::read" << fileName << "is too large:" << info.size();
        return properties;
    }
    QSettings file(fileName, QSettings::IniFormat);
    file.setIniCodec("UTF-8");
    const QStringList keys = file.allKeys();
    if (keys.size() > maxKeys)
        qWarning() << "ZrSkinProperties::read" << fileName << "has too many keys:" << keys.size();
    const QStringList taken = keys.mid(0, maxKeys);
    for (const QString &key : taken) {
        QString name = key;
        name.remove(QLatin1Char('/'));
        properties.append({name.toLatin1(), file.value(key).toString()});
    }
    return properties;
}
