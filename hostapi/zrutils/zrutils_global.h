#pragma once

#include <QtCore/qglobal.h>

#if defined(ZRUTILS_LIBRARY)
#define ZRUTILS_EXPORT Q_DECL_EXPORT
#else
#define ZRUTILS_EXPORT Q_DECL_IMPORT
#endif
