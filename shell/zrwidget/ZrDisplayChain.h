#pragma once

#include "zrwidget_global.h"

#include <QtCore/QString>

class ZrFieldSetting;

/// Turns the text of a message value into the text that a cell shows, word by word of the column's chain.
///
/// Shape:   "Dictionary|CommaSeparation" first translates and then groups the digits of the translation. An
///          empty or unknown word leaves the text alone.
/// Threads: GUI thread: some words ask the host's dictionaries, securities and accounts.
/// Errors:  a look-up that finds nothing gives what the host returns, an empty text: an unknown account
///          number isn't kept.
class ZRWIDGET_PRIVATE_EXPORT ZrDisplayChain
{
public:
    static QString apply(const QString &text, const ZrFieldSetting &field);
};
