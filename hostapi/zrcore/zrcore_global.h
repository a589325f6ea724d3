#pragma once

#include <QtCore/qglobal.h>

#if defined(ZRCORE_LIBRARY)
#define ZRCORE_EXPORT Q_DECL_EXPORT
#else
#define ZRCORE_EXPORT Q_DECL_IMPORT
#endif
