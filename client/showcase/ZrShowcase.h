#pragma once

#include <QtCore/QCoreApplication>

/// The texts of all pages: ZrShowcase::tr("Disabled") is the same text on each of them.
class ZrShowcase
{
    Q_DECLARE_TR_FUNCTIONS(ZrShowcase)
};
