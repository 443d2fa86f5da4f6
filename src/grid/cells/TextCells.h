#pragma once

#include "grid/cells/CellSource.h"

#include <QtCore/QHash>

namespace KOVAVSFDataGridLib {

// Cells stored in the grid itself. Only cells with a text use memory, so an empty grid of any size is cheap.
class TextCells : public CellSource
{
public:
    // At least one row and one column.
    TextCells(int rows, int cols);

    int rows() const override { return m_rows; }
    int cols() const override { return m_cols; }
    bool isBlank() const override { return m_texts.isEmpty(); }
    QString text(int row, int col) const override;
    bool isNumeric(int) const override { return false; }
    bool setText(int row, int col, const QString &text) override;

private:
    int m_rows;
    int m_cols;
    QHash<quint64, QString> m_texts;
};

} // namespace KOVAVSFDataGridLib
