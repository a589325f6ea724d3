#pragma once

#include "zrwidget_global.h"

#include <QtCore/QObject>

class QLineEdit;
class ZrDateEdit;

/// Whether a ZrDateEdit holds nothing, and how it is kept empty.
///
/// Ownership: a child of its editor.
/// Threads:   GUI thread only.
class ZRWIDGET_PRIVATE_EXPORT ZrDateEditPrivate : public QObject
{
    Q_OBJECT
public:
    explicit ZrDateEditPrivate(ZrDateEdit *owner);

    // Shared: the family may read, only this pair writes.
    bool isNull = false; // holds nothing; takes effect while `nullable` is true
    bool nullable = false;

    bool isNullInForce() const { return nullable && isNull; }
    /// Notes the state; true also takes away what the field shows.
    void setNull(bool null);
    /// The field inside of the editor; null if a style or subclass has put another one in its place.
    QLineEdit *field() const;

private:
    ZrDateEdit *const q; // not owned: our QObject parent
};
