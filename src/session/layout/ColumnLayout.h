#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

namespace KOVAVSFDataGridLib {

// Which fields are shown.
enum class FieldView : qint32 { All = 0, Part = 1 };

// What becomes of a hidden column's width when the widths are kept: nothing, or it is kept as the default
// one.
enum class HiddenWidths { Unsaved, AsDefault };
// Whether the part fields get their kept widths or stay as wide as they are.
enum class PartWidths { Unchanged, Kept };

class ColumnView;
class colShowSQLSentences;

// The grid has a column for each field of the result; which ones are seen and how wide they are stands in
// the field catalogue of the history. These routines keep both in step. A column belongs to the catalogue's
// field of the name in its heading; widths are twips and 0 hides a column.
class ColumnLayout
{
public:
    // Kept free for the row headings when columns are fitted, in twips.
    static constexpr int rowHeadingMargin = 600;

    // Both must outlive this object, which is made for the moment.
    ColumnLayout(ColumnView &grid, colShowSQLSentences &history);

    // Records the statement that the grid shows, unless it is empty, and lays its columns out. `savesWidths`
    // takes the grid's widths over into the new entry first. The texts may be the history's markers for
    // "unchanged".
    void RecordShowSQL(const QString &strSQL, FieldView view, bool savesWidths,
                       const QString &strCurrPartFields, const QString &strCurrOrderFields,
                       const QString &connectionString);

    // Keeps the grid's widths in the catalogue.
    void SaveColumnWidths(HiddenWidths hidden = HiddenWidths::Unsaved);
    // Keeps the width with which a field's column comes back.
    void keepWidth(const QString &field, int width);
    // Hides what is no part field. While no column belongs to one, all of them are shown.
    void ShowPartFieldColumns(PartWidths widths);
    // Gives every field its kept width, which shows it. A column without a field keeps its own, unless it is
    // hidden: nothing else could bring it back.
    void ShowAllFieldColumns();

    QStringList fieldsShownBy(FieldView view) const;
    // Whether each of these fields has a column, seen or not.
    bool hasColumnsFor(const QStringList &fields) const;

    // Gives each column that is not hidden an equal share of the grid's width, `round`ed to whole twips; the
    // hidden ones as well when `showsHidden`. Nothing changes when no field is shown or there is no room.
    void fitColumns(int (*round)(double twips), bool showsHidden = false);
    bool columnsFit() const;
    // What each of so many columns gets of a grid's width, in twips; nothing where there is no room at all.
    static std::optional<double> shareOfWidth(int gridWidth, qsizetype columns);

private:
    QList<bool> partColumns(const QStringList &headings) const;

    ColumnView &m_grid;
    colShowSQLSentences &m_history;
};

} // namespace KOVAVSFDataGridLib
