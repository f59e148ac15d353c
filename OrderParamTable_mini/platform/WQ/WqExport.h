#pragma once

#include <QtCore/qglobal.h>

/// Marks what the platform's shared library offers: exported while that library is built, imported elsewhere.
#if defined(WQ_BUILDING)
#define WQ_EXPORT Q_DECL_EXPORT
#else
#define WQ_EXPORT Q_DECL_IMPORT
#endif
