#pragma once

#include <QtCore/qglobal.h>

// Marks what the shared library exports. Everything else is hidden.
#if defined(KOVAVSFDataGridLib_EXPORTS)
#define KOVA_EXPORT Q_DECL_EXPORT
#else
#define KOVA_EXPORT Q_DECL_IMPORT
#endif
