#pragma once

#include <QtCore/qglobal.h>

#if defined(ZRSKIN_LIBRARY)
#define ZRSKIN_EXPORT Q_DECL_EXPORT
#else
#define ZRSKIN_EXPORT Q_DECL_IMPORT
#endif
