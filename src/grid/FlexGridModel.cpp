#include "grid/FlexGridModel.h"

#include "grid/TextCells.h"

namespace KOVAVSFDataGridLib {

FlexGridModel::FlexGridModel(int fixedCols, QObject *parent)
    : QAbstractTableModel(parent), m_fixedCols(fixedCols), m_source(std::make_unique<TextCells>(2, 2))
{
}

FlexGridModel::~FlexGridModel() = default;

void FlexGridModel::setSource(std::unique_ptr<CellSource> source)
{
    Q_ASSERT(source);
    beginResetModel();
    m_source = std::move(source);
    endResetModel();
}

bool FlexGridModel::setText(int row, int col, const QString &text)
{
    if (!m_source->setText(row, col, text))
        return false;
    if (row == 0 && col >= m_fixedCols) {
        Q_EMIT headerDataChanged(Qt::Horizontal, col - m_fixedCols, col - m_fixedCols);
    } else if (row > 0 && col < m_fixedCols) {
        Q_EMIT headerDataChanged(Qt::Vertical, row - 1, row - 1);
    } else if (row > 0) {
        const QModelIndex cell = index(row - 1, col - m_fixedCols);
        Q_EMIT dataChanged(cell, cell, {Qt::DisplayRole});
    }
    return true;
}

int FlexGridModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_source->rows() - 1;
}

int FlexGridModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_source->cols() - m_fixedCols;
}

QVariant FlexGridModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const int col = index.column() + m_fixedCols;
    if (role == Qt::DisplayRole)
        return m_source->text(index.row() + 1, col);
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(Qt::AlignVCenter |
                                   (m_source->isNumeric(col) ? Qt::AlignRight : Qt::AlignLeft));
    return {};
}

QVariant FlexGridModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    const bool isColumn = orientation == Qt::Horizontal;
    if (section < 0 || section >= (isColumn ? columnCount() : rowCount()))
        return {};
    if (role == Qt::DisplayRole) {
        if (isColumn)
            return m_source->text(0, section + m_fixedCols);
        return m_fixedCols > 0 ? m_source->text(section + 1, 0) : QString();
    }
    if (role == Qt::TextAlignmentRole) {
        if (!isColumn)
            return QVariant::fromValue(Qt::Alignment(Qt::AlignCenter));
        // Over its texts, or its numbers.
        const Qt::AlignmentFlag side =
            m_source->isNumeric(section + m_fixedCols) ? Qt::AlignRight : Qt::AlignLeft;
        return QVariant::fromValue(Qt::AlignVCenter | side);
    }
    return {};
}

} // namespace KOVAVSFDataGridLib
