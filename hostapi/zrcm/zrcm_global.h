#pragma once

#include <QtCore/qglobal.h>

#if defined(ZRCM_LIBRARY)
#define ZRCM_EXPORT Q_DECL_EXPORT
#else
#define ZRCM_EXPORT Q_DECL_IMPORT
#endif
