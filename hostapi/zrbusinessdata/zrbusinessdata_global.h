#pragma once

#include <QtCore/qglobal.h>

#if defined(ZRBUSINESSDATA_LIBRARY)
#define ZRBUSINESSDATA_EXPORT Q_DECL_EXPORT
#else
#define ZRBUSINESSDATA_EXPORT Q_DECL_IMPORT
#endif
