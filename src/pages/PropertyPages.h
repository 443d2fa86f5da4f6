#pragma once

#include "../KovaExport.h"

#include <QtCore/QStringList>

class QWidget;

// The property pages of the grid, by name.
namespace KOVAVSFDataGridLib {

class PropertyPage;

// In the order in which they are shown.
KOVA_EXPORT QStringList propertyPageNames();

// Creates a page, owned by `parent`, or by the caller if that is null. Null for an unknown name.
KOVA_EXPORT PropertyPage *newPropertyPage(const QString &name, QWidget *parent = nullptr);

} // namespace KOVAVSFDataGridLib
