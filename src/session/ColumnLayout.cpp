#include "session/ColumnLayout.h"

#include "grid/FlexGrid.h"
#include "grid/Twips.h"
#include "query/colShowSQLSentences.h"

#include <QtCore/QSet>

#include <algorithm>

namespace KOVAVSFDataGridLib {

namespace {

constexpr int ScrollBarMargin = 260; // twips, kept free when columns are fitted

} // namespace

ColumnLayout::ColumnLayout(VSFlexGrid &grid, colShowSQLSentences &history) : m_grid(grid), m_history(history)
{
}

bool ColumnLayout::RecordShowSQL(const QString &strSQL, qint32 lngIsShowAllFields, qint32 vSaveWidths,
                                 const QString &strCurrPartFields, const QString &strCurrOrderFields,
                                 const QString &connectionString)
{
    if (strSQL.isEmpty())
        return false;
    m_history.AddCurrentSQL(strSQL, lngIsShowAllFields, strCurrPartFields, strCurrOrderFields);
    m_history.SetConnString(connectionString);
    m_history.GetCurrSQLFieldsStatus();
    if (vSaveWidths != 0)
        SaveColumnWidths(1);
    if (lngIsShowAllFields == 0)
        ShowPartFieldColumns(1);
    else
        ShowAllFieldColumns();
    return true;
}

void ColumnLayout::SaveColumnWidths(qint32 mode)
{
    colDataFields &fields = m_history.DataFields();
    for (int col = 1; col < m_grid.Cols(); ++col) {
        int width = m_grid.ColWidth(col);
        if (width == FlexGrid::UseDefaultWidth || (width == 0 && mode == 1))
            width = FlexGrid::DefaultColWidth;
        QString key;
        if (width >= 1 && fields.GetSelFieldKey(m_grid.TextMatrix(0, col), key))
            fields.Update(key, [width](clsDataField &field) { field.FieldWidth = width; });
    }
}

void ColumnLayout::ShowPartFieldColumns(qint32 mode)
{
    const colDataFields &fields = m_history.DataFields();
    bool hasPartField = false;
    for (int col = 1; col < m_grid.Cols() && !hasPartField; ++col)
        hasPartField = m_history.IsSelFieldPartField(m_grid.TextMatrix(0, col));
    if (!hasPartField)
        return;
    for (int col = 1; col < m_grid.Cols(); ++col) {
        const QString name = m_grid.TextMatrix(0, col);
        if (!m_history.IsSelFieldPartField(name)) {
            m_grid.PutColWidth(col, 0);
        } else if (mode == 1) {
            const clsDataField *field = fields.Find(name);
            if (field && field->FieldWidth >= 1)
                m_grid.PutColWidth(col, field->FieldWidth);
        }
    }
}

void ColumnLayout::ShowAllFieldColumns()
{
    const colDataFields &fields = m_history.DataFields();
    for (int col = 1; col < m_grid.Cols(); ++col) {
        const clsDataField *field = fields.Find(m_grid.TextMatrix(0, col));
        int width = field ? field->FieldWidth : 0;
        const bool isHiddenForGood = !field && m_grid.ColWidth(col) == 0;
        if (width == FlexGrid::UseDefaultWidth || isHiddenForGood)
            width = FlexGrid::DefaultColWidth;
        if (width > 0)
            m_grid.PutColWidth(col, width);
    }
}

QStringList ColumnLayout::fieldsShownBy(qint32 lngIsShowAllFields) const
{
    QStringList names;
    for (const clsDataField &field : m_history.DataFields()) {
        if (lngIsShowAllFields != 0 || field.IsPartField != 0)
            names.append(field.FieldName);
    }
    return names;
}

bool ColumnLayout::hasColumnsFor(const QStringList &fields) const
{
    QSet<QString> headings;
    for (int col = 1; col < m_grid.Cols(); ++col)
        headings.insert(m_grid.TextMatrix(0, col));
    return std::all_of(fields.cbegin(), fields.cend(),
                       [&](const QString &field) { return headings.contains(field); });
}

bool ColumnLayout::columnsFit() const
{
    int sum = 0;
    for (int col = 0; col < m_grid.Cols(); ++col)
        sum += m_grid.ColWidthInUse(col);
    return sum <= Twips::fromPixels(m_grid.width(), m_grid);
}

std::optional<double> ColumnLayout::shareOfWidth() const
{
    qint32 shown = 0;
    if (!m_history.GetCurrShowFieldsCount(shown) || shown < 1)
        return std::nullopt;
    const int room = Twips::fromPixels(m_grid.width(), m_grid) - ScrollBarMargin - RowHeadingMargin;
    if (room < shown)
        return std::nullopt; // no room at all: better too wide than gone
    return static_cast<double>(room) / shown;
}

void ColumnLayout::fitColumns()
{
    const std::optional<double> share = shareOfWidth();
    if (!share)
        return;
    for (int col = 1; col < m_grid.Cols(); ++col) {
        if (m_grid.ColWidth(col) != 0)
            m_grid.PutColWidth(col, static_cast<int>(*share));
    }
}

} // namespace KOVAVSFDataGridLib
