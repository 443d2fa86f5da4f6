#pragma once

#include "grid/HeadingMark.h"
#include "grid/cells/CellSource.h"
#include "grid/painting/TextMarks.h"

#include "ado/values/DisplayFormat.h"

#include <QtCore/QAbstractTableModel>
#include <QtCore/QHash>

#include <memory>
#include <vector>

namespace KOVAVSFDataGridLib {

// The cells of a CellSource below and to the right of its headings, as a Qt model; the headings are its
// header data. It always has a source, initially an empty one with two rows and two columns.
class FlexGridModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    // The first `fixedCols` (0 or 1) columns of the source are row headings.
    explicit FlexGridModel(int fixedCols, QObject *parent = nullptr);
    ~FlexGridModel() override;

    int fixedCols() const { return m_fixedCols; }
    const CellSource &source() const { return *m_source; }
    // Replaces all cells (model reset). `source` must not be null.
    void setSource(std::unique_ptr<CellSource> source);
    // Uses a source with the same cells and more rows below, if any (rows inserted). Not null.
    void growTo(std::unique_ptr<CellSource> source);
    // Writes one cell in grid coordinates, including headings; false if the source is read-only.
    bool setText(int row, int col, const QString &text);

    // What the headings show beside their texts, by grid column. Missing columns have no marks.
    void setHeadingMarks(std::vector<HeadingMark> marks);
    HeadingMark headingMark(int section) const;

    // Display formats, by the headings of their columns; kept when other cells are shown.
    const QHash<QString, ADODB::DisplayFormat> &formats() const { return m_formats; }
    void setFormats(const QHash<QString, ADODB::DisplayFormat> &formats);
    // A cell's shown text, in grid coordinates. The end of a text too long for any cell may be missing.
    QString shownText(int row, int col) const;
    // Whether Null is shown as such.
    bool showsNulls() const { return m_showsNulls; }
    void setShowsNulls(bool on) { m_showsNulls = on; }
    // Whether a cell shows Null, in grid coordinates.
    bool isShownNull(int row, int col) const { return m_showsNulls && m_source->isNull(row, col); }
    // Marks parts of the shown texts; null marks nothing.
    const TextMarker &textMarker() const { return m_marker; }
    void setTextMarker(TextMarker marker) { m_marker = std::move(marker); }
    bool hasFormats() const { return !m_formatOfCol.empty(); }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    void findFormats();
    ADODB::DisplayFormat formatOf(int row, int col) const;
    QString spokenText(int row, int col) const;

    const int m_fixedCols;
    std::unique_ptr<CellSource> m_source;
    std::vector<HeadingMark> m_marks;
    TextMarker m_marker;
    bool m_showsNulls = false;
    QHash<QString, ADODB::DisplayFormat> m_formats;
    std::vector<ADODB::DisplayFormat> m_formatOfCol; // empty if no column has one
};

} // namespace KOVAVSFDataGridLib
