#pragma once

#include <QtCore/qglobal.h>

// Marks what the shared library exports. Everything else is hidden.
#if defined(QT_STATIC) // a part of this library that nobody else can use
#define KOVA_EXPORT
#elif defined(KOVAVSFDataGridLib_EXPORTS)
#define KOVA_EXPORT Q_DECL_EXPORT
#else
#define KOVA_EXPORT Q_DECL_IMPORT
#endif
