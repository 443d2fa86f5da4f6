#pragma once

#include "ado/values/DisplayFormat.h"
#include "export/RecordWriter.h"

#include <QtGui/QFont>
#include <QtGui/QPainter>

#include <limits>

class QPagedPaintDevice;

namespace KOVAVSFDataGridLib {

// What the pages contain besides the records.
struct PageOptions
{
    QString title;
    qint64 records = 0;                              // how many will be written, for the number of pages
    std::vector<ADODB::DisplayFormat> formats;       // one per column; missing ones mean no format
    int mostPages = std::numeric_limits<int>::max(); // further pages are omitted
};

// Draws records as a table on the pages of a printer or a PDF file. Each page has the title, the headings and
// its number. The columns are as wide as in the grid, or wider where the page has room for what their texts
// need; together they are never wider than the page. What is longer than its column is cut and ends with
// dots.
class PageWriter final : public RecordWriter
{
public:
    // The device must outlive this object. Its page size and margins are used as they are.
    PageWriter(QPagedPaintDevice &device, PageOptions options);

    void begin(const ExportColumns &columns) override;
    void row(const std::vector<ADODB::RawValue> &cells) override;
    void end() override;

    // The number of pages for all records. Call it after begin().
    qint64 pageCount() const;
    bool isFull() const { return m_page > m_options.mostPages; }

private:
    void measure();
    void beginPage();
    void drawHeadings();
    void drawRules(double top, double bottom);
    void drawCell(std::size_t column, double top, const QString &text);
    QString textOf(std::size_t column, const ADODB::RawValue &cell);

    QPagedPaintDevice &m_device;
    const PageOptions m_options;
    ExportColumns m_columns;
    std::vector<bool> m_isNumeric;
    std::vector<double> m_lefts; // one more than there are columns
    QFont m_font;
    QFont m_bold;
    QPainter m_painter;
    double m_lineHeight = 0;
    double m_padding = 0;
    double m_firstRow = 0; // below the headings
    qint64 m_rowsOfPage = 1;
    qint64 m_rowOnPage = 0;
    qint64 m_page = 0;
    QByteArray m_value;
};

// Whether the columns are so wide that a page should be in landscape orientation.
bool isForLandscape(const ExportColumns &columns);

} // namespace KOVAVSFDataGridLib
