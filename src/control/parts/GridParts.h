#pragma once

#include <QtCore/QLatin1StringView>
#include <QtCore/QRect>

class QCheckBox;
class QFrame;
class QLineEdit;
class QPushButton;
class QWidget;

namespace ADODB {
class Adodc;
}

#include <array>

namespace KOVAVSFDataGridLib {

class ElidedLabel;
class EmptyHint;
class FilterBar;
class FindBar;
class GridToolbar;
class MSFlexGrid;
class StatementLine;
class SummaryLine;
class ValueEdit;
class VSFlexGrid;

// The parts of the control, with the names by which hosts and tests find them, and their layout. The control
// owns them as their parent.
class GridParts
{
public:
    static constexpr int minimumWidth = 3000;  // twips
    static constexpr int minimumHeight = 1500; // twips
    // The name of the grid, for rooms that don't know its class.
    static constexpr QLatin1StringView gridName{"vsfgDataGrid"};

    explicit GridParts(QWidget &control);
    Q_DISABLE_COPY_MOVE(GridParts)

    QWidget *picMainBack;
    GridToolbar *Toolbar1;
    FilterBar *conditions;
    VSFlexGrid *vsfgDataGrid;
    FindBar *find;
    EmptyHint *lblEmpty;
    MSFlexGrid *MSFlexGrid1;
    ValueEdit *txtEdit;
    QLineEdit *txtPage;
    QPushButton *cmdPgae;
    ElidedLabel *lblFieldCount;
    SummaryLine *lblSummary;
    QPushButton *cmdSaveRecord; // beside lblStatement while a record is not saved
    StatementLine *lblStatement;
    QCheckBox *CheckSelAllRow;
    ADODB::Adodc *Adodc1;

    // Arranges everything in a control of the given size.
    void layOut(int width, int height);
    // Arranges the parts below the grid again. Call it when the page label's text has changed.
    void layOutFoot() const;
    // Describes the current record, the selection and the active conditions to assistive tools.
    void describeGrid() const;
    // The area of the line below the grid, in the control.
    QRect foot() const;

private:
    void writeTexts() const;
    int footHeight() const;
    int gap() const;

    std::array<QFrame *, 4> m_dividers; // between the parts of the foot
};

} // namespace KOVAVSFDataGridLib
