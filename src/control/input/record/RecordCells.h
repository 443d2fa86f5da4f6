#pragma once

#include "grid/cells/TextCells.h"

#include <functional>

namespace KOVAVSFDataGridLib {

// The names and values of a record's fields, with headings. The description of a value for screen readers is
// requested each time, because an editor may have changed it.
class RecordCells final : public TextCells
{
public:
    // `spokenValue` is called with a row, from 1.
    RecordCells(int fields, std::function<QString(int row)> spokenValue)
        : TextCells(fields + 1, 2), m_spokenValue(std::move(spokenValue))
    {
    }

    QString spoken(int row, int col) const override
    {
        return row > 0 && col == 1 ? m_spokenValue(row) : TextCells::spoken(row, col);
    }

private:
    std::function<QString(int)> m_spokenValue;
};

} // namespace KOVAVSFDataGridLib
