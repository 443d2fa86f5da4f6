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
    // Takes a source with the same cells and further rows below them, if any (rows inserted). Not null.
    void growTo(std::unique_ptr<CellSource> source);
    // Writes one cell in grid coordinates, headings included; false when the source can't be written.
    bool setText(int row, int col, const QString &text);

    // What the headings show beside their texts, by grid column; columns without one have none.
    void setHeadingMarks(std::vector<HeadingMark> marks);
    HeadingMark headingMark(int section) const;

    // How texts are shown, by the headings of their columns; kept when other cells are shown.
    const QHash<QString, ADODB::DisplayFormat> &formats() const { return m_formats; }
    void setFormats(const QHash<QString, ADODB::DisplayFormat> &formats);
    // A cell's text as it is shown, in grid coordinates. What no cell has room for may be missing at its end.
    QString shownText(int row, int col) const;
    // Whether cells without a value say so.
    bool showsNulls() const { return m_showsNulls; }
    void setShowsNulls(bool on) { m_showsNulls = on; }
    // Whether that is what a cell shows, in grid coordinates.
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

    const int m_fixedCols;
    std::unique_ptr<CellSource> m_source;
    std::vector<HeadingMark> m_marks;
    TextMarker m_marker;
    bool m_showsNulls = false;
    QHash<QString, ADODB::DisplayFormat> m_formats;
    std::vector<ADODB::DisplayFormat> m_formatOfCol; // empty when no column has one
};

} // namespace KOVAVSFDataGridLib
