#pragma once

#include "zrdatabase/zrdatabase_global.h"

#include <QtCore/QMap>
#include <QtCore/QString>

/// Static configuration: dictionaries of codes and their texts, read only.
///
/// Threads: GUI thread; a look-up never waits for a disk.
/// Errors:  what is unknown gives an empty text or map.
class ZRDATABASE_EXPORT CDataBase
{
public:
    static CDataBase *GetInstance();

    /// Text of a configured code.
    QString GetStaticCfgValue(const QString &section, const QString &key) const;
    /// All pairs of a section.
    QMap<QString, QString> GetStaticValuesBySection(const QString &section) const;

private:
    CDataBase();
    ~CDataBase();
    Q_DISABLE_COPY(CDataBase)
    class Private;
    Private *d;
};
