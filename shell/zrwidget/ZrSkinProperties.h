#pragma once

#include "zrwidget_global.h"

#include <QtCore/QByteArray>
#include <QtCore/QPair>
#include <QtCore/QString>
#include <QtCore/QVector>

/// The properties that a skin gives a plugin widget, in an INI file of the plugin's folder.
///
/// Shape:   one property for each key, without the slashes: the key "size/width" is the property "sizewidth".
///          Names are Latin-1, files UTF-8.
/// Threads: GUI thread only.
/// Errors:  no file, no properties. Beyond the bounds nothing more is read, with one log line.
class ZRWIDGET_PRIVATE_EXPORT ZrSkinProperties
{
public:
    using List = QVector<QPair<QByteArray, QString>>;

    static constexpr int maxBytes = 1 << 18;
    static constexpr int maxKeys = 1000;

    /// Where the properties of a plugin's folder `dir` lie in a skin.
    static QString fileName(const QString &skinId, const QString &dir);
    static List read(const QString &fileName);

private:
    ZrSkinProperties() = delete;
};
