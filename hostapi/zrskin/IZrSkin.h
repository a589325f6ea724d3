#pragma once

#include "zrskin/zrskin_global.h"

#include <QtCore/QObject>

class QVariant;

/// What a skin can be put on: every visible widget of the library.
///
/// A class inherits its widget base first and IZrSkin second, names it in Q_INTERFACES, and gives
/// itself to ZrCore::addStyle2View in its constructor. The host finds the end of a view's life
/// through its QObject part.
/// Threads: GUI thread only.
class ZRSKIN_EXPORT IZrSkin
{
public:
    /// Receives the text of the view's style sheet, now and after each change of skin. An invalid
    /// variant means that there is no sheet: the view keeps what it has.
    virtual void loadSkin(const QVariant &css) = 0;

protected:
    // Not virtual: loadSkin is the interface's one slot, and nobody deletes a view through it.
    IZrSkin();
    ~IZrSkin();
    Q_DISABLE_COPY(IZrSkin)
};

Q_DECLARE_INTERFACE(IZrSkin, "com.orbenlake.Plugin.ISkin")
