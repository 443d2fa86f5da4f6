#pragma once

#include <QtCore/QRect>

class QDialog;
class QFrame;
class QLabel;
class QLineEdit;
class QPushButton;
class QWidget;

namespace KOVAVSFDataGridLib {

class EmptyHint;
class FilterBar;
class FindBar;
class GridToolbar;
class VSFlexGrid;

// The parts of the full-screen viewer, with the names by which tests find them, arranged in its window, which
// owns them.
class ViewerParts
{
public:
    explicit ViewerParts(QDialog &window);
    Q_DISABLE_COPY_MOVE(ViewerParts)

    QWidget *picBox;
    QFrame *fraTitle;
    GridToolbar *Toolbar1;
    QPushButton *cmdClose;
    FilterBar *conditions;
    VSFlexGrid *vsfgShowData;
    FindBar *find;
    EmptyHint *lblEmpty;
    QLineEdit *txtPage;
    QPushButton *cmdPgae;
    QLabel *lblPageCount;

    // The area of the bar below the grid, in the window.
    QRect foot() const;

private:
    void nameParts();
    void layOut(QDialog &window);
};

} // namespace KOVAVSFDataGridLib
