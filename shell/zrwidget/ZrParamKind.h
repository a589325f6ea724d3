#pragma once

#include "zrwidget_global.h"

#include <QtCore/QVariantMap>

class QAbstractSpinBox;
class QWidget;
class ZrParamLink;

/// What one type of editor does for a parameter: how it is made, read, written and rebuilt.
///
/// Shape:     without a state; one object serves all editors of the type.
/// Units:     roles: 0 is what the user sees, Qt::UserRole what is stored.
/// Ownership: an editor belongs to its Qt parent.
/// Threads:   GUI thread only.
/// Errors:    a widget of another type, null included, reads as invalid and is neither written nor rebuilt.
class ZRWIDGET_PRIVATE_EXPORT ZrParamKind
{
public:
    virtual ~ZrParamKind();

    /// Null when the record's type of value has no such editor.
    virtual QWidget *make(const QVariantMap &record, QWidget *parent, const ZrParamLink &link) const = 0;
    virtual QVariant read(const QWidget *widget, int role) const = 0;
    /// Writes the stored value. An editor that is not to be edited is locked; none is ever unlocked.
    virtual void write(QWidget *widget, const QVariant &value, bool isEditable) const = 0;
    /// Takes on what `link` tells after the other parameter changed. Here: the rule of a line edit, which
    /// some editors of other types are too.
    virtual void relink(const QVariantMap &record, QWidget *widget, const ZrParamLink &link) const;

protected:
    static void lock(QAbstractSpinBox *box);
};
