#pragma once

#include "zrwidget_global.h"

#include <QtCore/QVariantMap>

class QLineEdit;
class QWidget;
class ZrParamLink;

/// Puts the rule of what can be typed on the line edit of a parameter.
///
/// Shape:     a QRegExpValidator without a parent, case-sensitive; an empty pattern puts none on.
/// Ownership: the rule goes with its edit, and when another rule takes its place.
/// Threads:   GUI thread only.
/// Errors:    a pattern that is none lets nothing be typed, and is told in the log.
class ZRWIDGET_PRIVATE_EXPORT ZrParamLineRule
{
public:
    static void install(QLineEdit *edit, const QString &pattern);
    /// After the other parameter changed; nothing for a widget that is no line edit.
    static void relink(QWidget *widget, const ZrParamLink &link);

private:
    ZrParamLineRule() = delete;
};
