#include "print/PageWriter.h"

#include "ado/Error.h"
#include "ado/values/FieldText.h"
#include "ado/values/NumericTypes.h"
#include "language/GroupedNumber.h"
#include "print/PrintTexts.h"

#include <QtGui/QFontMetricsF>
#include <QtGui/QPagedPaintDevice>

#include <algorithm>
#include <numeric>

namespace KOVAVSFDataGridLib {

namespace {

constexpr double pixelsPerInch = 96; // the unit of ExportColumn::width
constexpr int widthOfUnknown = 80;
constexpr double largestFont = 9; // points
constexpr double smallestFont = 5;
constexpr qsizetype longestText = 400; // no page can show more
constexpr int portraitPixels = 700;    // A4 with margins of 12 mm
const QColor ruleColour(0xb8, 0xb8, 0xb8);
const QColor headingColour(0xee, 0xee, 0xee);

double widthOf(const ExportColumn &column)
{
    return column.width > 0 ? column.width : widthOfUnknown;
}

// Letters on paper are not fitted to pixels, which makes some of them wider than on a screen.
constexpr double widerOnPaper = 1.1;

double missingWidth(const ExportColumn &column)
{
    return std::max(0.0, column.fittingWidth * widerOnPaper - widthOf(column));
}

double sumOf(const ExportColumns &columns, double (*of)(const ExportColumn &))
{
    double sum = 0;
    for (const ExportColumn &column : columns)
        sum += of(column);
    return sum;
}

// Cut, a number or a date says something else; of a text, the beginning is worth reading.
bool mustBeWhole(const ExportColumn &column)
{
    return ADODB::isNumericType(column.type) || !ADODB::isTextType(column.type);
}

// Gives columns that must be whole what they lack, as far as others have it: first what these do not need
// themselves, then what they need. `scale` is the size of the letters.
void giveToWhole(std::vector<double> &widths, const ExportColumns &columns, double scale)
{
    constexpr double leastOfText = 40;
    const auto needOf = [&](std::size_t i) {
        return columns[i].fittingWidth > 0 ? columns[i].fittingWidth * widerOnPaper * scale : widths[i];
    };
    const auto lackOf = [&](std::size_t i) {
        return mustBeWhole(columns[i]) ? std::max(0.0, needOf(i) - widths[i]) : 0;
    };
    const auto spareOf = [&](std::size_t i, bool isNeeded) {
        const bool canGiveMore = isNeeded && !mustBeWhole(columns[i]);
        return std::max(0.0, widths[i] - (canGiveMore ? leastOfText * scale : needOf(i)));
    };
    for (const bool isNeeded : {false, true}) {
        double lack = 0;
        double spare = 0;
        for (std::size_t i = 0; i < widths.size(); ++i) {
            lack += lackOf(i);
            spare += spareOf(i, isNeeded);
        }
        const double moved = std::min(lack, spare);
        if (moved <= 0)
            continue;
        for (std::size_t i = 0; i < widths.size(); ++i)
            widths[i] += lackOf(i) * moved / lack - spareOf(i, isNeeded) * moved / spare;
    }
}

// As in the grid; where the page has room left, columns that are too narrow for their texts get it.
std::vector<double> widthsOn(double page, const ExportColumns &columns)
{
    const double missing = sumOf(columns, missingWidth);
    const double room = std::max(0.0, page - sumOf(columns, widthOf));
    const double share = missing > 0 ? std::min(1.0, room / missing) : 0;
    std::vector<double> widths;
    for (const ExportColumn &column : columns)
        widths.push_back(widthOf(column) + missingWidth(column) * share);
    return widths;
}

} // namespace

bool isForLandscape(const ExportColumns &columns)
{
    return sumOf(columns, widthOf) + sumOf(columns, missingWidth) > portraitPixels;
}

PageWriter::PageWriter(QPagedPaintDevice &device, PageOptions options)
    : m_device(device), m_options(std::move(options))
{
}

void PageWriter::begin(const ExportColumns &columns)
{
    m_columns = columns;
    for (const ExportColumn &column : m_columns)
        m_isNumeric.push_back(ADODB::isNumericType(column.type));
    if (!m_painter.begin(&m_device))
        throw ADODB::Error(ADODB::adErrWriteFile, PrintTexts::CantPrint);
    measure();
    beginPage();
}

void PageWriter::measure()
{
    const double page = m_device.width() * pixelsPerInch / m_device.logicalDpiX();
    std::vector<double> widths = widthsOn(page, m_columns);
    const double wanted = std::accumulate(widths.begin(), widths.end(), 0.0);
    const double share = wanted > 0 ? std::min(1.0, page / wanted) : 1.0;
    m_font.setPointSizeF(std::max(smallestFont, largestFont * share));
    for (double &width : widths)
        width *= share;
    giveToWhole(widths, m_columns, m_font.pointSizeF() / largestFont);
    m_bold = m_font;
    m_bold.setBold(true);
    const QFontMetricsF metrics(m_font, &m_device);
    m_lineHeight = metrics.height() * 1.4;
    m_padding = metrics.height() * 0.25;
    m_lefts.assign(1, 0);
    for (const double width : widths)
        m_lefts.push_back(m_lefts.back() + width * m_device.logicalDpiX() / pixelsPerInch);
    // The title, a gap, the headings, the rows and the page number.
    const QFontMetricsF title(m_bold, &m_device);
    m_firstRow = title.height() * 1.8 + m_lineHeight;
    const double below = m_device.height() - m_firstRow - m_lineHeight * 1.2;
    m_rowsOfPage = std::max<qint64>(1, static_cast<qint64>(below / m_lineHeight));
}

qint64 PageWriter::pageCount() const
{
    return std::max<qint64>(1, (m_options.records + m_rowsOfPage - 1) / m_rowsOfPage);
}

void PageWriter::beginPage()
{
    ++m_page;
    m_rowOnPage = 0;
    if (isFull())
        return;
    if (m_page > 1 && !m_device.newPage())
        throw ADODB::Error(ADODB::adErrWriteFile, PrintTexts::CantPrint);
    m_painter.setPen(Qt::black);
    m_painter.setFont(m_bold);
    const QRectF title(0, 0, m_device.width(), m_firstRow - m_lineHeight);
    m_painter.drawText(
        title, Qt::AlignLeft | Qt::AlignTop,
        QFontMetricsF(m_bold, &m_device).elidedText(m_options.title, Qt::ElideRight, title.width()));
    m_painter.setFont(m_font);
    const QRectF foot(0, m_device.height() - m_lineHeight, m_device.width(), m_lineHeight);
    m_painter.drawText(foot, Qt::AlignHCenter | Qt::AlignBottom,
                       PrintTexts::PageOf.arg(grouped(m_page), grouped(pageCount())));
    drawHeadings();
}

void PageWriter::drawHeadings()
{
    const double top = m_firstRow - m_lineHeight;
    m_painter.fillRect(QRectF(0, top, m_lefts.back(), m_lineHeight), headingColour);
    m_painter.setFont(m_bold);
    for (std::size_t i = 0; i < m_columns.size(); ++i)
        drawCell(i, top, m_columns[i].heading);
    m_painter.setFont(m_font);
    drawRules(top, m_firstRow);
    m_painter.setPen(QPen(ruleColour, 0));
    m_painter.drawLine(QLineF(0, top, m_lefts.back(), top));
}

// The lines around the cells of one row: at the sides and below.
void PageWriter::drawRules(double top, double bottom)
{
    m_painter.setPen(QPen(ruleColour, 0));
    for (const double x : m_lefts)
        m_painter.drawLine(QLineF(x, top, x, bottom));
    m_painter.drawLine(QLineF(0, bottom, m_lefts.back(), bottom));
}

void PageWriter::drawCell(std::size_t column, double top, const QString &text)
{
    if (text.isEmpty())
        return;
    const QRectF cell(m_lefts[column] + m_padding, top, m_lefts[column + 1] - m_lefts[column] - 2 * m_padding,
                      m_lineHeight);
    const QFontMetricsF metrics(m_painter.font(), &m_device);
    const bool fits = metrics.horizontalAdvance(text) <= cell.width();
    m_painter.setPen(Qt::black);
    const int side = m_isNumeric[column] ? Qt::AlignRight : Qt::AlignLeft;
    m_painter.drawText(cell, side | Qt::AlignVCenter | Qt::TextSingleLine,
                       fits ? text : metrics.elidedText(text, Qt::ElideRight, cell.width()));
}

QString PageWriter::textOf(std::size_t column, const ADODB::RawValue &cell)
{
    m_value.resize(0);
    ADODB::appendText(m_value, cell, m_columns[column].type);
    QString text = QString::fromUtf8(m_value.left(4 * longestText)).left(longestText);
    if (column < m_options.formats.size()) {
        ADODB::DisplayFormat format = m_options.formats[column];
        if (!cell.isNumber())
            format.leastDecimals = 0;
        text = format.applied(text);
    }
    for (QChar &c : text) {
        if (c < u' ')
            c = u' ';
    }
    return text;
}

void PageWriter::row(const std::vector<ADODB::RawValue> &cells)
{
    if (m_rowOnPage == m_rowsOfPage)
        beginPage();
    if (isFull())
        return;
    const double top = m_firstRow + static_cast<double>(m_rowOnPage) * m_lineHeight;
    for (std::size_t i = 0; i < m_columns.size(); ++i)
        drawCell(i, top, textOf(i, cells[static_cast<std::size_t>(m_columns[i].field)]));
    drawRules(top, top + m_lineHeight);
    ++m_rowOnPage;
}

void PageWriter::end()
{
    m_painter.end();
}

} // namespace KOVAVSFDataGridLib
