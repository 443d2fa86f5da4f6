#pragma once

#include "export/RecordWriter.h"

#include <QtCore/QTemporaryFile>

#include <memory>

struct lxw_format;
struct lxw_workbook;
struct lxw_worksheet;
class QIODevice;

namespace KOVAVSFDataGridLib {

// A workbook: numbers, dates and Booleans as such, the headings frozen, the columns as wide as they are
// shown. What has no room on a sheet goes to further ones. Rows are written to disk as they come, so memory
// stays the same however many there are.
class XlsxWriter final : public RecordWriter
{
public:
    // `device` is open for writing and must outlive this object. Rows and columns of a sheet are limited by
    // the format; `rowsOfSheet` is there for tests.
    static constexpr quint32 mostRows = 1048576;
    static constexpr int mostColumns = 16384;
    XlsxWriter(QIODevice &device, bool hasHeadings, quint32 rowsOfSheet = mostRows);
    ~XlsxWriter() override;

    void begin(const ExportColumns &columns) override;
    void row(const std::vector<ADODB::RawValue> &cells) override;
    void end() override;

    // How many texts were longer than a cell can hold and have been cut.
    qint64 cutTexts() const { return m_cutTexts; }

private:
    void addSheet();
    void write(quint16 col, const ADODB::RawValue &cell, const ExportColumn &column);
    void writeNumber(quint16 col, const ADODB::RawValue &cell, const ExportColumn &column);
    bool writeMoment(quint16 col, const ADODB::RawValue &cell, const ExportColumn &column);
    void writeText(quint16 col, QByteArrayView utf8);
    lxw_format *numberFormat(int scale);
    lxw_format *format(const char *numberFormat);
    // Throws for anything but success.
    static void check(int error);

    struct CloseBook
    {
        void operator()(lxw_workbook *book) const;
    };

    QIODevice &m_device;
    const bool m_hasHeadings;
    const quint32 m_rowsOfSheet;
    QTemporaryFile m_file; // which the library writes
    std::unique_ptr<lxw_workbook, CloseBook> m_book;
    lxw_worksheet *m_sheet = nullptr;
    int m_sheets = 0;
    quint32 m_row = 0; // next, from 0
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
