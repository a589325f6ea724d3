#pragma once

#include "zrcm/zrcm_global.h"

#include <QtCore/QString>

class QVariant;

/// Name of an object that the host can make: a plugin.
///
/// Shape:     a value; null when nothing was named.
/// Ownership: owns its opaque content; copies are independent.
/// Threads:   a value of its own on any thread.
/// Errors:    none; what can't be named is null.
class ZRCM_EXPORT Id
{
public:
    Id();
    Id(const Id &other);
    Id &operator=(const Id &other);
    ~Id();

    /// Turns a plugin ID, a text in a variant, into an Id. An unknown or an empty ID, or a variant
    /// that holds no text, gives a null Id: callers test it before they go on.
    static Id fromSetting(const QVariant &setting);

    bool isNull() const;
    /// The text that fromSetting took; empty for a null Id.
    QString toString() const;
    bool operator==(const Id &other) const;
    bool operator!=(const Id &other) const;

private:
    class Private;
    Private *d;
};
