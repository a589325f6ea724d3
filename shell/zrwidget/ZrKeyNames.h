#pragma once

#include "zrwidget_global.h"

#include <QtCore/QMap>
#include <QtCore/QString>

/// How keys are called in a shortcut.
///
/// Shape:   Qt key code to name. Printable characters are their own names; letters appear as capitals only,
///          since that is how a key event reports them. Keys that can't be part of a shortcut have none.
/// Threads: any; built at the first use and never changed.
/// Errors:  a key without a name reads as an empty text.
class ZRWIDGET_PRIVATE_EXPORT ZrKeyNames
{
public:
    static QString name(int key);
    static const QMap<int, QString> &table();

private:
    ZrKeyNames() = delete;
};
