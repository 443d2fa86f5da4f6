#pragma once

#include "../KovaExport.h"

#include <QtCore/QStringList>

class QWidget;

// The property pages of the grid, by name.
namespace KOVAVSFDataGridLib {

class PropertyPage;

// In the order in which they are offered.
KOVA_EXPORT QStringList PropertyPageNames();

// A new page, owned by `parent` or the caller; null for an unknown name.
KOVA_EXPORT PropertyPage *NewPropertyPage(const QString &name, QWidget *parent = nullptr);

} // namespace KOVAVSFDataGridLib
