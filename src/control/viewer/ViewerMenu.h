#pragma once

#include <QtWidgets/QMenu>

namespace KOVAVSFDataGridLib {

class GridToolbar;

// The viewer's popup menu on the grid: the actions PopMnuAction1 … PopMnuAction7, each with its index as
// data; 3 and 6 are separators.
class ViewerMenu final : public QMenu
{
    Q_OBJECT

public:
    enum Index { AllFields = 1, PartFields = 2, CellFilter = 4, FullTable = 5, Back = 7 };

    explicit ViewerMenu(QWidget *parent);

    // An item is enabled when its toolbar button is; the cell filter also needs a cell with a text.
    void EnablePopupItems(const GridToolbar &toolbar, bool hasCellText);

Q_SIGNALS:
    void chosen(int index);
};

} // namespace KOVAVSFDataGridLib
