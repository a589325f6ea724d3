#pragma once

#include <QtCore/qglobal.h>

#if defined(ZRPLUGIN_LIBRARY)
#define ZRPLUGIN_EXPORT Q_DECL_EXPORT
#else
#define ZRPLUGIN_EXPORT Q_DECL_IMPORT
#endif
