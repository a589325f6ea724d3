#pragma once

#include "zrwidget_global.h"

#include <QtCore/QString>

class ZrParamKind;

/// The types of editor that a parameter record can ask for.
///
/// Ownership: kinds live as long as the process.
/// Threads:   GUI thread only.
class ZRWIDGET_PRIVATE_EXPORT ZrParamKinds
{
public:
    /// The kind of a Constants::WIDGETTYPE_ text; null when there is no such type.
    static const ZrParamKind *find(const QString &widgetType);

private:
    ZrParamKinds() = delete;
};
