#pragma once

#include <QtCore/qglobal.h>

#if defined(ZRBASE_LIBRARY)
#define ZRBASE_EXPORT Q_DECL_EXPORT
#else
#define ZRBASE_EXPORT Q_DECL_IMPORT
#endif
