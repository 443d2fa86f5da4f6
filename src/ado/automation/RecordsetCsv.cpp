#include "ado/automation/RecordsetCsv.h"

#include "ado/Recordset.h"

#include <QtCore/QIODevice>

#include <algorithm>

namespace ADODB {

namespace {

constexpr qsizetype pendingBytes = qsizetype{64} * 1024;

bool needsQuotes(const QByteArray &text)
{
    return text.isEmpty() ||
           std::ranges::any_of(text, [](char c) { return c == ',' || c == '"' || c == '\r' || c == '\n'; });
}

} // namespace

RecordsetCsv::RecordsetCsv(QIODevice &device, const Recordset &recordset)
    : m_device(device),
      m_recordset(recordset),
      m_columns(recordset.Fields().Count()),
      m_pending("\xEF\xBB\xBF")
{
    for (int i = 0; i < m_columns; ++i) {
        const QByteArray name = recordset.Fields().Item(i).Name().toUtf8();
        add(i, name, needsQuotes(name));
    }
    endLine();
}

void RecordsetCsv::write(qint64 record)
{
    for (int i = 0; i < m_columns; ++i) {
        if (m_recordset.IsNull(record, i)) {
            add(i, {}, false);
            continue;
        }
        const QVariant value = m_recordset.CellValue(record, i);
        const QByteArray text = value.typeId() == QMetaType::QByteArray
                                    ? value.toByteArray().toHex()
                                    : m_recordset.CellText(record, i).toUtf8();
        add(i, text, needsQuotes(text));
    }
    endLine();
}

bool RecordsetCsv::end()
{
    m_isWritten = m_isWritten && m_device.write(m_pending) == m_pending.size();
    m_pending.clear();
    return m_isWritten;
}

void RecordsetCsv::add(int column, const QByteArray &text, bool isQuoted)
{
    if (column > 0)
        m_pending += ',';
    if (isQuoted)
        m_pending += '"' + QByteArray(text).replace('"', "\"\"") + '"';
    else
        m_pending += text;
}

void RecordsetCsv::endLine()
{
    m_pending += "\r\n";
    if (m_pending.size() >= pendingBytes)
        end();
}

} // namespace ADODB
