#include "session/layout/ColumnLayout.h"

#include "query/colShowSQLSentences.h"
#include "session/layout/ColumnView.h"

#include <algorithm>
#include <vector>

namespace KOVAVSFDataGridLib {

namespace {

constexpr int scrollBarMargin = 260; // twips, kept free when columns are fitted

} // namespace

ColumnLayout::ColumnLayout(ColumnView &grid, colShowSQLSentences &history) : m_grid(grid), m_history(history)
{
}

void ColumnLayout::RecordShowSQL(const QString &strSQL, FieldView view, bool savesWidths,
                                 const QString &strCurrPartFields, const QString &strCurrOrderFields,
                                 const QString &connectionString)
{
    if (strSQL.isEmpty())
        return;
    const bool showsAll = view == FieldView::All;
    m_history.AddCurrentSQL(strSQL, showsAll ? AllFieldsShown : PartFieldsShown, strCurrPartFields,
                            strCurrOrderFields);
    m_history.SetConnString(connectionString);
    m_history.GetCurrSQLFieldsStatus();
    if (savesWidths)
        SaveColumnWidths(HiddenWidths::AsDefault);
    if (showsAll)
        ShowAllFieldColumns();
    else
        ShowPartFieldColumns(PartWidths::Kept);
}

void ColumnLayout::SaveColumnWidths(HiddenWidths hidden)
{
    const QStringList headings = m_grid.Headings();
    for (int col = 1; col < m_grid.Cols(); ++col) {
        int width = m_grid.ColWidth(col);
        if (width == ColumnView::useDefaultWidth || (width == 0 && hidden == HiddenWidths::AsDefault))
            width = ColumnView::defaultColWidth;
        if (width >= 1)
            keepWidth(headings.at(col - 1), width);
    }
}

void ColumnLayout::keepWidth(const QString &field, int width)
{
    colDataFields &fields = m_history.DataFields();
    QString key;
    if (fields.GetSelFieldKey(field, key))
        fields.Update(key, [width](clsDataField &kept) { kept.FieldWidth = width; });
}

// For each heading, whether it is a part field: by position if all fields are shown, because several can have
// the same name.
QList<bool> ColumnLayout::partColumns(const QStringList &headings) const
{
    if (headings == fieldsShownBy(FieldView::All))
        return m_history.PartFields();
    const QStringList names = fieldsShownBy(FieldView::Part);
    QList<bool> areParts;
    for (const QString &heading : headings)
        areParts.append(names.contains(heading));
    return areParts;
}

void ColumnLayout::ShowPartFieldColumns(PartWidths widths)
{
    const colDataFields &fields = m_history.DataFields();
    const QStringList headings = m_grid.Headings();
    const QList<bool> areParts = partColumns(headings);
    if (!areParts.contains(true)) {
        if (widths == PartWidths::Kept)
            ShowAllFieldColumns();
        return;
    }
    for (int col = 1; col < m_grid.Cols(); ++col) {
        if (!areParts.at(col - 1)) {
            m_grid.PutColWidth(col, 0);
        } else if (widths == PartWidths::Kept) {
            const clsDataField *field = fields.Find(headings.at(col - 1));
            if (field && field->FieldWidth >= 1)
                m_grid.PutColWidth(col, field->FieldWidth);
        }
    }
}

void ColumnLayout::ShowAllFieldColumns()
{
    const colDataFields &fields = m_history.DataFields();
    const QStringList headings = m_grid.Headings();
    for (int col = 1; col < m_grid.Cols(); ++col) {
        const clsDataField *field = fields.Find(headings.at(col - 1));
        int width = field ? field->FieldWidth : 0;
        const bool isHiddenForGood = !field && m_grid.ColWidth(col) == 0;
        if (width == ColumnView::useDefaultWidth || isHiddenForGood)
            width = ColumnView::defaultColWidth;
        if (width > 0)
            m_grid.PutColWidth(col, width);
    }
}

QStringList ColumnLayout::fieldsShownBy(FieldView view) const
{
    QStringList names;
    for (const clsDataField &field : m_history.DataFields()) {
        if (view == FieldView::All || field.IsPartField != 0)
            names.append(field.FieldName);
    }
    return names;
}

bool ColumnLayout::hasColumnsFor(const QStringList &fields) const
{
    const QStringList shown = m_grid.Headings();
    const QStringList all = fieldsShownBy(FieldView::All);
    // Fields with the same name can't be distinguished, even if only one of them is shown or wanted, so the
    // statement must be read.
    return std::all_of(fields.cbegin(), fields.cend(), [&](const QString &field) {
        return shown.count(field) == 1 && fields.count(field) == 1 && all.count(field) <= 1;
    });
}

bool ColumnLayout::columnsFit() const
{
    return m_grid.widthOfColumns() <= m_grid.width();
}

std::optional<double> ColumnLayout::shareOfWidth(int gridWidth, qsizetype columns)
{
    const int room = gridWidth - scrollBarMargin - rowHeadingMargin;
    if (columns < 1 || room < columns)
        return std::nullopt; // too wide is better than invisible
    return static_cast<double>(room) / static_cast<double>(columns);
}

void ColumnLayout::fitColumns(int (*round)(double), bool showsHidden)
{
    std::vector<int> columns;
    for (int col = 1; col < m_grid.Cols(); ++col) {
        if (showsHidden || m_grid.ColWidth(col) != 0)
            columns.push_back(col);
    }
    if (m_history.Count() == 0)
        return;
    const std::optional<double> share = shareOfWidth(m_grid.width(), static_cast<qsizetype>(columns.size()));
    if (!share)
        return;
    for (const int col : columns)
        m_grid.PutColWidth(col, round(*share));
}

} // namespace KOVAVSFDataGridLib
