#include "grid/cells/FlexGridModel.h"

#include "grid/cells/CellTexts.h"
#include "grid/cells/TextCells.h"
#include "grid/painting/CellDelegate.h"

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
    findFormats();
    endResetModel();
}

void FlexGridModel::growTo(std::unique_ptr<CellSource> source)
{
    Q_ASSERT(source && source->cols() == m_source->cols() && source->rows() >= m_source->rows());
    const int rowsBefore = rowCount();
    const int rowsAfter = source->rows() - 1;
    if (rowsAfter == rowsBefore)
        return;
    beginInsertRows({}, rowsBefore, rowsAfter - 1);
    m_source = std::move(source);
    endInsertRows();
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

void FlexGridModel::setHeadingMarks(std::vector<HeadingMark> marks)
{
    if (marks == m_marks)
        return;
    m_marks = std::move(marks);
    if (columnCount() > 0)
        Q_EMIT headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

HeadingMark FlexGridModel::headingMark(int section) const
{
    if (section < 0)
        return {};
    const std::size_t place = static_cast<std::size_t>(section) + static_cast<std::size_t>(m_fixedCols);
    return place < m_marks.size() ? m_marks[place] : HeadingMark();
}

void FlexGridModel::setFormats(const QHash<QString, ADODB::DisplayFormat> &formats)
{
    m_formats = formats;
    findFormats();
    if (rowCount() > 0 && columnCount() > 0)
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1), {Qt::DisplayRole});
}

void FlexGridModel::findFormats()
{
    m_formatOfCol.clear();
    std::vector<ADODB::DisplayFormat> found(static_cast<std::size_t>(m_source->cols()));
    bool isAny = false;
    for (int col = m_fixedCols; col < m_source->cols(); ++col) {
        ADODB::DisplayFormat &format = found[static_cast<std::size_t>(col)];
        format = m_formats.value(m_source->text(0, col));
        format.leastDecimals = m_source->decimalsOfColumn(col);
        isAny = isAny || !format.isNone();
    }
    if (isAny)
        m_formatOfCol = std::move(found);
}

ADODB::DisplayFormat FlexGridModel::formatOf(int row, int col) const
{
    const auto place = static_cast<std::size_t>(col);
    if (row == 0 || place >= m_formatOfCol.size())
        return {};
    ADODB::DisplayFormat format = m_formatOfCol[place];
    if (format.leastDecimals > 0)
        format.leastDecimals = m_source->decimals(row, col);
    return format;
}

QString FlexGridModel::shownText(int row, int col) const
{
    const ADODB::DisplayFormat format = formatOf(row, col);
    return format.isNone() ? m_source->beginning(row, col, CellDelegate::longestText + 1)
                           : format.applied(m_source->text(row, col));
}

// What is said is what is shown.
QString FlexGridModel::spokenText(int row, int col) const
{
    const ADODB::DisplayFormat format = formatOf(row, col);
    return format.isNone() || m_source->isNull(row, col) ? m_source->spoken(row, col)
                                                         : format.applied(m_source->text(row, col));
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
    if (role == Qt::AccessibleTextRole)
        return spokenText(index.row() + 1, col);
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
    if (role == Qt::AccessibleTextRole && isColumn) {
        const QString spoken = headingMark(section).spoken;
        const QString text = m_source->text(0, section + m_fixedCols);
        return spoken.isEmpty() ? text : CellTexts::Spoken.arg(text, spoken);
    }
    if (role == Qt::TextAlignmentRole) {
        if (!isColumn)
            return QVariant::fromValue(Qt::Alignment(Qt::AlignCenter));
        // Headings are aligned like the texts or numbers below them.
        const Qt::AlignmentFlag side =
            m_source->isNumeric(section + m_fixedCols) ? Qt::AlignRight : Qt::AlignLeft;
        return QVariant::fromValue(Qt::AlignVCenter | side);
    }
    return {};
}

} // namespace KOVAVSFDataGridLib
