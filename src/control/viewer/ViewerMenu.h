#pragma once

#include <QtWidgets/QMenu>

namespace KOVAVSFDataGridLib {

class GridToolbar;

// The viewer's popup menu on the grid: the actions PopMnuAction1 … PopMnuAction7 and those after them, each
// with its index as data; 3, 6 and 8 are separators. Their shortcuts work in the whole viewer.
class ViewerMenu final : public QMenu
{
    Q_OBJECT

public:
    explicit ViewerMenu(QWidget *parent);

    // An item is enabled when its toolbar button is; the cell filter when "Filter" is and the cell has a
    // text.
    void EnablePopupItems(const GridToolbar &toolbar, bool hasCellText);

Q_SIGNALS:
    void commandChosen(const QString &key);
    // The way back to the control.
    void backChosen();

private:
    void addItem(int index);
};

} // namespace KOVAVSFDataGridLib
