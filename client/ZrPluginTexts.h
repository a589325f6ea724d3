#pragma once

#include "ZrPluginCatalogue.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QString>

/// What the workstation says about plugin files, in the user's language.
///
/// Shape:   a file's own texts may hold anything; what comes from here is one line that shows as it is,
/// without
///          signs that steer a terminal or the order of writing. Details that the system's loader gave are
///          English.
/// Threads: GUI thread only.
class ZrPluginTexts
{
    Q_DECLARE_TR_FUNCTIONS(ZrPluginTexts)
public:
    static QString state(const ZrPluginEntry &entry);
    /// Empty for a plugin that is loaded or could be.
    static QString reason(const ZrPluginEntry &entry);
    static QString fileName(const ZrPluginEntry &entry);
    /// Milliseconds with one decimal; empty for nothing.
    static QString milliseconds(qint64 us);
    static QString plain(const QString &text);
    /// One line for each file, its parts separated by tabs: name, ID, version, state, reason.
    static QString table(const QVector<ZrPluginEntry> &entries);
    /// What a start has to tell: who ended the last one, and how many files were refused.
    static QStringList notices(const ZrPluginCatalogue &catalogue);
};
