#pragma once

class QRect;
class QTableView;

namespace KOVAVSFDataGridLib {

// Whether a row, a column or a cell in this part of the viewport has a delegate of its own or a span.
bool hasDelegateOrSpan(const QTableView &view, const QRect &part);

} // namespace KOVAVSFDataGridLib
