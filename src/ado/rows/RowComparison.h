#pragma once

#include "ado/rows/RowStore.h"

#include <QtCore/QString>

#include <vector>

namespace ADODB {

// Checks, shared by the row writers of all engines, that a row is still the one that was shown. `source` is
// the engine's name for the error.
namespace RowComparison {

// Whether two cells have the same kind and value.
bool isSame(const RawValue &a, const RawValue &b);

// Throws dbErrConcurrency unless `found` is exactly one row that equals `shown` in the given columns.
void needRowAsShown(const RowStore &found, const std::vector<RawValue> &shown,
                    const std::vector<int> &columns, const QString &source);
// Throws dbErrConcurrency unless `rows` is 1.
void needOneRow(qint64 rows, const QString &source);
// Throws dbErrConcurrency unless a statement for one existing row changed exactly one.
void needOneChange(qint64 changed, const QString &source);

} // namespace RowComparison

} // namespace ADODB
