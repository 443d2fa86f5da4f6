#pragma once

#include "export/RecordWriter.h"

#include <QtCore/QByteArray>

namespace KOVAVSFDataGridLib {

// Tab-separated values in the form that spreadsheets paste: lines end with CR LF, and values that contain a
// tab or a line end or begin with a quote are quoted. A single value is written unchanged.
class TabTextWriter final : public RecordWriter
{
public:
    explicit TabTextWriter(bool hasHeadings) : m_hasHeadings(hasHeadings) {}

    void begin(const ExportColumns &columns) override;
    void row(const std::vector<ADODB::RawValue> &cells) override;
    void end() override;

    // UTF-8.
    const QByteArray &text() const { return m_text; }
    // Appends a value, quoted if necessary.
    static void appendValue(QByteArray &text, QByteArrayView value);

private:
    const bool m_hasHeadings;
    ExportColumns m_columns;
    QByteArray m_text;
    QByteArray m_onlyValue;
    qint64 m_rows = 0;
};

} // namespace KOVAVSFDataGridLib
