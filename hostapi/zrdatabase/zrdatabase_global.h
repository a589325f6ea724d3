#pragma once

#include <QtCore/qglobal.h>

#if defined(ZRDATABASE_LIBRARY)
#define ZRDATABASE_EXPORT Q_DECL_EXPORT
#else
#define ZRDATABASE_EXPORT Q_DECL_IMPORT
#endif
