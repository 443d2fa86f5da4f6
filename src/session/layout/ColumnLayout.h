#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

namespace KOVAVSFDataGridLib {

// Which fields are shown.
enum class FieldView : qint32 { All = 0, Part = 1 };

// What to save for a hidden column when the widths
// are saved: nothing, or the default width.
enum class HiddenWidths { Unsaved, AsDefault };
// Whether the part fields get their saved widths or keep their current ones.
enum class PartWidths { Unchanged, Kept };

class ColumnView;
class colShowSQLSentences;

// The grid has one column per field of the result; the field catalogue of the history stores which ones are
// visible and their widths. These functions keep both in sync. A column belongs to the field named in its
// heading; widths are in twips, and 0 hides a column.
class ColumnLayout
{
public:
    // Kept free for the row headings when columns are fitted, in twips.
    static constexpr int rowHeadingMargin = 600;

    // Both must outlive this object, which is temporary.
    ColumnLayout(ColumnView &grid, colShowSQLSentences &history);

    // Records the statement that the grid shows, unless it is empty, and arranges its columns. With
    // `savesWidths`, first copies the grid's widths to the new entry. The texts may be the history's markers
    // for "unchanged".
    void RecordShowSQL(const QString &strSQL, FieldView view, bool savesWidths,
                       const QString &strCurrPartFields, const QString &strCurrOrderFields,
                       const QString &connectionString);

    // Saves the grid's widths in the catalogue.
    void SaveColumnWidths(HiddenWidths hidden = HiddenWidths::Unsaved);
    // Keeps the width with which a field's column comes back.
    void keepWidth(const QString &field, int width);
    // Hides all columns but the part fields. If no column is a part field, all are shown.
    void ShowPartFieldColumns(PartWidths widths);
    // Shows all fields, with their saved widths. A column without a field keeps its width, unless it is
    // hidden, because nothing else could show it again.
    void ShowAllFieldColumns();

    QStringList fieldsShownBy(FieldView view) const;
    // Whether each of these fields has a column, visible or not.
    bool hasColumnsFor(const QStringList &fields) const;

    // Divides the grid's width equally among the visible columns, `round`ed to whole twips, or among all with
    // `showsHidden`. Does nothing if no field is shown or there is no room.
    void fitColumns(int (*round)(double twips), bool showsHidden = false);
    bool columnsFit() const;
    // Each column's share of a grid's width in twips; no value if there is no room.
    static std::optional<double> shareOfWidth(int gridWidth, qsizetype columns);

private:
    QList<bool> partColumns(const QStringList &headings) const;

    ColumnView &m_grid;
    colShowSQLSentences &m_history;
};

} // namespace KOVAVSFDataGridLib
