#pragma once

#include "export/RecordWriter.h"

#include <QtCore/QByteArray>

namespace KOVAVSFDataGridLib {

// Values separated by tabs, as spreadsheets paste them: lines end with CR LF, and a value with a tab, a quote
// at its begin or a line end is quoted. One value alone is written as it is.
class TabTextWriter final : public RecordWriter
{
public:
    explicit TabTextWriter(bool hasHeadings) : m_hasHeadings(hasHeadings) {}

    void begin(const ExportColumns &columns) override;
    void row(const std::vector<ADODB::RawValue> &cells) override;
    void end() override;

    // UTF-8.
    const QByteArray &text() const { return m_text; }
    // Appends a value, and quotes it where it needs that.
    static void appendValue(QByteArray &text, QByteArrayView value);

private:
    const bool m_hasHeadings;
    ExportColumns m_columns;
    QByteArray m_text;
    QByteArray m_onlyValue;
    qint64 m_rows = 0;
};

} // namespace KOVAVSFDataGridLib
