#pragma once

#include "grid/FlexGrid.h"
#include "grid/cells/TextCells.h"

#include <gtest/gtest.h>

namespace KovaTest {

// A grid that is seen, of a hundred rows and five columns whose texts say where they are.
struct Grid : testing::Test
{
    Grid()
    {
        using namespace KOVAVSFDataGridLib;
        using namespace Qt::StringLiterals;
        auto cells = std::make_unique<TextCells>(101, 6);
        for (int row = 0; row < cells->rows(); ++row) {
            for (int col = 0; col < cells->cols(); ++col)
                cells->setText(row, col, u"r%1c%2"_s.arg(row).arg(col));
        }
        grid.resize(500, 300);
        grid.Show(std::move(cells));
        grid.show();
    }

    QPoint centreOf(int row, int col) const
    {
        return grid.visualRect(grid.model()->index(row - 1, col - 1)).center();
    }

    KOVAVSFDataGridLib::VSFlexGrid grid;
};

} // namespace KovaTest
