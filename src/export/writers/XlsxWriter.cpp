#include "export/writers/XlsxWriter.h"

#include "ado/Error.h"
#include "ado/values/FieldText.h"
#include "ado/values/FieldValue.h"
#include "ado/values/NumericTypes.h"
#include "ado/values/Utf8.h"
#include "export/ExportTexts.h"
#include "export/Spreadsheet.h"
#include "export/TextSink.h"

#include <QtCore/QDateTime>
#include <QtCore/QFile>

#include <xlsxwriter.h>

#include <algorithm>
#include <cmath>

namespace KOVAVSFDataGridLib {

namespace {

using Kind = ADODB::RawValue::Kind;

constexpr qsizetype longestCell = 32767; // UTF-16 units per cell
constexpr int widestColumn = 600;        // pixels; a wider one would fill the screen
constexpr int mostDecimals = 15;
constexpr int firstYear = 1900; // of the calendar in spreadsheets; its days before March are off by one
constexpr qint64 largestExact = qint64{1} << 53;

bool isDateType(ADODB::DataTypeEnum type)
{
    return type == ADODB::adDBDate || type == ADODB::adDBTime || type == ADODB::adDate ||
           type == ADODB::adDBTimeStamp;
}

// A decimal with no more digits than a spreadsheet's numbers have.
bool isShortDecimal(QByteArrayView text)
{
    const auto digits = std::count_if(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
    const bool isPlain = std::all_of(text.begin(), text.end(),
                                     [](char c) { return (c >= '0' && c <= '9') || c == '.' || c == '-'; });
    return isPlain && digits > 0 && digits <= exactDigits;
}

} // namespace

void XlsxWriter::CloseBook::operator()(lxw_workbook *book) const
{
    lxw_workbook_free(book);
}

XlsxWriter::XlsxWriter(QIODevice &device, bool hasHeadings, quint32 rowsOfSheet)
    : m_device(device), m_hasHeadings(hasHeadings), m_rowsOfSheet(rowsOfSheet)
{
}

XlsxWriter::~XlsxWriter() = default;

void XlsxWriter::check(int error)
{
    if (error == LXW_NO_ERROR)
        return;
    const char *const text = lxw_strerror(static_cast<lxw_error>(error));
    throw ADODB::Error(ADODB::adErrWriteFile, ExportTexts::XlsxFailed.arg(QString::fromUtf8(text)));
}

void XlsxWriter::begin(const ExportColumns &columns)
{
    if (columns.size() > static_cast<std::size_t>(mostColumns)) {
        throw ADODB::Error(ADODB::adErrWriteFile,
                           ExportTexts::TooManyColumns.arg(mostColumns).arg(columns.size()));
    }
    m_columns = columns;
    if (!m_file.open())
        throw ADODB::Error(ADODB::adErrWriteFile, m_file.errorString());
    lxw_workbook_options options{};
    options.constant_memory = LXW_TRUE;
    options.use_zip64 = LXW_TRUE; // the text of a sheet can exceed 4 GB
    m_book.reset(workbook_new_opt(QFile::encodeName(m_file.fileName()).constData(), &options));
    if (!m_book)
        check(LXW_ERROR_MEMORY_MALLOC_FAILED);
    m_heading = workbook_add_format(m_book.get());
    format_set_bold(m_heading);
    m_date = format("yyyy-mm-dd");
    m_time = format("hh:mm:ss");
    m_moment = format("yyyy-mm-dd hh:mm:ss");
    addSheet();
}

lxw_format *XlsxWriter::format(const char *numberFormat)
{
    lxw_format *const made = workbook_add_format(m_book.get());
    format_set_num_format(made, numberFormat);
    return made;
}

lxw_format *XlsxWriter::numberFormat(int scale)
{
    const auto at = static_cast<std::size_t>(std::clamp(scale, 0, mostDecimals));
    if (at == 0)
        return nullptr;
    m_numbers.resize(std::max(m_numbers.size(), at + 1), nullptr);
    if (!m_numbers[at])
        m_numbers[at] = format(("0." + QByteArray(static_cast<qsizetype>(at), '0')).constData());
    return m_numbers[at];
}

void XlsxWriter::addSheet()
{
    ++m_sheets;
    const QString name = m_sheets == 1 ? ExportTexts::Sheet : ExportTexts::NextSheet.arg(m_sheets);
    m_sheet = workbook_add_worksheet(m_book.get(), name.toUtf8().constData());
    if (!m_sheet)
        check(LXW_ERROR_CREATING_TMPFILE);
    m_row = 0;
    for (std::size_t i = 0; i < m_columns.size(); ++i) {
        const auto col = static_cast<lxw_col_t>(i);
        if (m_columns[i].width > 0) {
            const auto pixels = static_cast<uint32_t>(std::min(m_columns[i].width, widestColumn));
            check(worksheet_set_column_pixels(m_sheet, col, col, pixels, nullptr));
        }
        if (m_hasHeadings) {
            m_text = m_columns[i].heading.toUtf8();
            check(worksheet_write_string(m_sheet, 0, col, m_text.constData(), m_heading));
        }
    }
    if (m_hasHeadings) {
        worksheet_freeze_panes(m_sheet, 1, 0);
        m_row = 1;
    }
}

void XlsxWriter::row(const std::vector<ADODB::RawValue> &cells)
{
    if (m_row >= m_rowsOfSheet)
        addSheet();
    for (std::size_t i = 0; i < m_columns.size(); ++i) {
        const ExportColumn &column = m_columns[i];
        write(static_cast<quint16>(i), cells[static_cast<std::size_t>(column.field)], column);
    }
    ++m_row;
}

void XlsxWriter::write(quint16 col, const ADODB::RawValue &cell, const ExportColumn &column)
{
    if (cell.kind == Kind::Null)
        return;
    if (isDateType(column.type) && writeMoment(col, cell, column))
        return;
    m_text.resize(0);
    ADODB::appendText(m_text, cell, column.type);
    if (column.type == ADODB::adBoolean && (m_text == "True" || m_text == "False"))
        check(worksheet_write_boolean(m_sheet, m_row, col, m_text == "True", nullptr));
    else
        writeNumber(col, cell, column);
}

// A number that a spreadsheet can't represent exactly is written as text.
void XlsxWriter::writeNumber(quint16 col, const ADODB::RawValue &cell, const ExportColumn &column)
{
    double number = 0;
    if (cell.kind == Kind::Integer && std::abs(cell.integer) <= largestExact)
        number = static_cast<double>(cell.integer);
    else if (cell.kind == Kind::Real && std::isfinite(cell.real))
        number = column.type == ADODB::adSingle ? m_text.toDouble() : cell.real;
    else if (cell.kind == Kind::Text && ADODB::isNumericType(column.type) && isShortDecimal(m_text))
        number = m_text.toDouble();
    else
        return writeText(col, m_text);
    check(worksheet_write_number(m_sheet, m_row, col, number, numberFormat(column.scale)));
}

bool XlsxWriter::writeMoment(quint16 col, const ADODB::RawValue &cell, const ExportColumn &column)
{
    const QVariant value = ADODB::FieldValue::fromRaw(cell, column.type);
    const bool isTime = value.typeId() == QMetaType::QTime;
    const bool isDate = value.typeId() == QMetaType::QDate;
    if (!isTime && !isDate && value.typeId() != QMetaType::QDateTime)
        return false;
    const QDate date = isTime ? QDate() : value.toDate();
    const QTime time = isDate ? QTime(0, 0) : value.toTime();
    if (!isTime && (date.year() < firstYear || date < QDate(firstYear, 3, 1) || date.year() > 9999))
        return false;
    lxw_datetime moment{};
    if (!isTime) {
        moment.year = date.year();
        moment.month = date.month();
        moment.day = date.day();
    }
    moment.hour = time.hour();
    moment.min = time.minute();
    moment.sec = time.second() + time.msec() / 1000.0;
    check(worksheet_write_datetime(m_sheet, m_row, col, &moment,
                                   isTime   ? m_time
                                   : isDate ? m_date
                                            : m_moment));
    return true;
}

void XlsxWriter::writeText(quint16 col, QByteArrayView utf8)
{
    QByteArray text = utf8.toByteArray();
    if (text.size() > longestCell) {
        QString wide = ADODB::textFromUtf8(text);
        if (wide.size() > longestCell) {
            const bool splitsPair = wide.at(longestCell - 1).isHighSurrogate();
            wide.truncate(longestCell - (splitsPair ? 1 : 0));
            text = wide.toUtf8();
            ++m_cutTexts;
        }
    }
    check(worksheet_write_string(m_sheet, m_row, col, text.constData(), nullptr));
}

void XlsxWriter::end()
{
    check(workbook_close(m_book.release()));
    // Opened again by name, because it was not written through this object.
    QFile written(m_file.fileName());
    if (!written.open(QIODevice::ReadOnly))
        throw ADODB::Error(ADODB::adErrWriteFile, written.errorString());
    constexpr qint64 piece = 1 << 20;
    while (!written.atEnd()) {
        const QByteArray bytes = written.read(piece);
        if (bytes.isEmpty())
            throw ADODB::Error(ADODB::adErrWriteFile, written.errorString());
        writeWhole(m_device, bytes);
    }
}

} // namespace KOVAVSFDataGridLib
