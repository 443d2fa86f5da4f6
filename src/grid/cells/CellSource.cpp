#include "grid/cells/CellSource.h"

#include "grid/cells/CellTexts.h"

namespace KOVAVSFDataGridLib {

QString CellSource::spoken(int row, int col) const
{
    return isNull(row, col) ? CellTexts::NoValue() : text(row, col);
}

} // namespace KOVAVSFDataGridLib
