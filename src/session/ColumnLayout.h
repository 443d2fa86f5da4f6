#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

namespace KOVAVSFDataGridLib {

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

    // Records the statement that the grid shows and lays its columns out: all fields when
    // `lngIsShowAllFields` is not 0, else the part fields. `vSaveWidths` other than 0 takes the grid's
    // widths over into the new entry first. The texts may be the history's markers for "unchanged". False
    // when the statement is empty.
    bool RecordShowSQL(const QString &strSQL, qint32 lngIsShowAllFields, qint32 vSaveWidths,
                       const QString &strCurrPartFields, const QString &strCurrOrderFields,
                       const QString &connectionString);

    // Keeps the grid's widths in the catalogue. A hidden column is left out, or with mode 1 kept as one of
    // the default width.
    void SaveColumnWidths(qint32 mode);
    // Hides what is no part field; with mode 1 the part fields also get their kept widths. Nothing is hidden
    // while no column belongs to a part field.
    void ShowPartFieldColumns(qint32 mode);
    // Gives every field its kept width, which shows it. A column without a field keeps its own, unless it is
    // hidden: nothing else could bring it back.
    void ShowAllFieldColumns();

    // The fields that are seen when all are shown, or else the part fields.
    QStringList fieldsShownBy(qint32 lngIsShowAllFields) const;
    // Whether each of these fields has a column, seen or not.
    bool hasColumnsFor(const QStringList &fields) const;

    // Gives each column that is not hidden an equal share of the grid's width, `round`ed to whole twips; the
    // hidden ones as well when `showsHidden`. Nothing changes when no field is shown or there is no room.
    void fitColumns(int (*round)(double twips), bool showsHidden = false);
    bool columnsFit() const;

private:
    std::optional<double> shareOfWidth() const;

    ColumnView &m_grid;
    colShowSQLSentences &m_history;
};

} // namespace KOVAVSFDataGridLib
