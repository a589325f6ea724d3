#pragma once

#include <QtCore/qglobal.h>

#if defined(ZREVENT_LIBRARY)
#define ZREVENT_EXPORT Q_DECL_EXPORT
#else
#define ZREVENT_EXPORT Q_DECL_IMPORT
#endif
