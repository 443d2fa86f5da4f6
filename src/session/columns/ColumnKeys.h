#pragma once

#include <QtCore/QString>

// The keys of the column commands that other code uses.
namespace KOVAVSFDataGridLib::ColumnKeys {

using namespace Qt::StringLiterals;

inline const QString FitColumn = u"FitColumn"_s;

} // namespace KOVAVSFDataGridLib::ColumnKeys
