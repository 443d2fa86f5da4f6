#pragma once

#include "grid/CellSource.h"

#include <QtCore/QAbstractTableModel>

#include <memory>

namespace KOVAVSFDataGridLib {

// The cells below and right of the headings of a CellSource, as a Qt model; the headings are its
// header data. Always has a source: an empty one of two rows and two columns to begin with.
class FlexGridModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    // `fixedCols` (0 or 1) leading columns of the source are headings of the rows.
    explicit FlexGridModel(int fixedCols, QObject *parent = nullptr);
    ~FlexGridModel() override;

    int fixedCols() const { return m_fixedCols; }
    const CellSource &source() const { return *m_source; }
    // Replaces all cells (model reset). `source` must not be null.
    void setSource(std::unique_ptr<CellSource> source);
    // Writes one cell in grid coordinates, headings included; false when the source can't be written.
    bool setText(int row, int col, const QString &text);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    const int m_fixedCols;
    std::unique_ptr<CellSource> m_source;
};

} // namespace KOVAVSFDataGridLib
