#pragma once

#include "export/RecordWriter.h"

#include <QtCore/QTemporaryFile>

#include <memory>

struct lxw_format;
struct lxw_workbook;
struct lxw_worksheet;
class QIODevice;

namespace KOVAVSFDataGridLib {

// A workbook with real numbers, dates and Booleans, frozen headings and column widths as shown. Records that
// don't fit on a sheet are written to further sheets. Rows are written to disk immediately, so memory usage
// does not depend on their number.
class XlsxWriter final : public RecordWriter
{
public:
    // `device` must be open for writing and outlive this object. The format limits the rows and columns of a
    // sheet; `rowsOfSheet` is for tests.
    static constexpr quint32 mostRows = 1048576;
    static constexpr int mostColumns = 16384;
    XlsxWriter(QIODevice &device, bool hasHeadings, quint32 rowsOfSheet = mostRows);
    ~XlsxWriter() override;

    void begin(const ExportColumns &columns) override;
    void row(const std::vector<ADODB::RawValue> &cells) override;
    void end() override;

    // The number of texts that were too long for a cell and were truncated.
    qint64 cutTexts() const { return m_cutTexts; }

private:
    void addSheet();
    void write(quint16 col, const ADODB::RawValue &cell, const ExportColumn &column);
    void writeNumber(quint16 col, const ADODB::RawValue &cell, const ExportColumn &column);
    bool writeMoment(quint16 col, const ADODB::RawValue &cell, const ExportColumn &column);
    void writeText(quint16 col, QByteArrayView utf8);
    lxw_format *numberFormat(int scale);
    lxw_format *format(const char *numberFormat);
    // Throws unless `error` means success.
    static void check(int error);

    struct CloseBook
    {
        void operator()(lxw_workbook *book) const;
    };

    QIODevice &m_device;
    const bool m_hasHeadings;
    const quint32 m_rowsOfSheet;
    QTemporaryFile m_file; // written by the library
    std::unique_ptr<lxw_workbook, CloseBook> m_book;
    lxw_worksheet *m_sheet = nullptr;
    int m_sheets = 0;
    quint32 m_row = 0; // the next one, from 0
    ExportColumns m_columns;
    lxw_format *m_heading = nullptr;
    lxw_format *m_date = nullptr;
    lxw_format *m_time = nullptr;
    lxw_format *m_moment = nullptr;
    std::vector<lxw_format *> m_numbers; // by scale
    qint64 m_cutTexts = 0;
    QByteArray m_text;
};

} // namespace KOVAVSFDataGridLib
