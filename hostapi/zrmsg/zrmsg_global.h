#pragma once

#include <QtCore/qglobal.h>

#if defined(ZRMSG_LIBRARY)
#define ZRMSG_EXPORT Q_DECL_EXPORT
#else
#define ZRMSG_EXPORT Q_DECL_IMPORT
#endif
