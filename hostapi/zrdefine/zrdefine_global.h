#pragma once

#include <QtCore/qglobal.h>

#if defined(ZRDEFINE_LIBRARY)
#define ZRDEFINE_EXPORT Q_DECL_EXPORT
#else
#define ZRDEFINE_EXPORT Q_DECL_IMPORT
#endif
