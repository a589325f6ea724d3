#pragma once

#include <QtCore/qglobal.h>

#if defined(ZRWIDGET_LIBRARY)
#define ZRWIDGET_EXPORT Q_DECL_EXPORT
#else
#define ZRWIDGET_EXPORT Q_DECL_IMPORT
#endif

// The unit's own private classes are hidden in the product. The tests need their symbols, so a build with
// tests exports them too; the list of exported classes is checked in a build without.
#if defined(ZRWIDGET_EXPORT_PRIVATE)
#define ZRWIDGET_PRIVATE_EXPORT ZRWIDGET_EXPORT
#else
#define ZRWIDGET_PRIVATE_EXPORT
#endif
