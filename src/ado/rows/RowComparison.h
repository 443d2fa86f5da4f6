#pragma once

#include "ado/rows/RowStore.h"

#include <QtCore/QString>

#include <vector>

namespace ADODB {

// What the row writers of all engines say when a row is not the one that was shown. `source` names the
// engine in the error.
namespace RowComparison {

// Whether two cells hold the same value of the same kind.
bool isSame(const RawValue &a, const RawValue &b);

// Throws dbErrConcurrency unless `found` is exactly one row that equals `shown` in the given columns.
void needRowAsShown(const RowStore &found, const std::vector<RawValue> &shown,
                    const std::vector<int> &columns, const QString &source);
// Throws dbErrConcurrency unless `rows` is 1.
void needOneRow(qint64 rows, const QString &source);
// Throws dbErrConcurrency unless a statement that was to change one row, which is there, changed one.
void needOneChange(qint64 changed, const QString &source);

} // namespace RowComparison

} // namespace ADODB
