#include "ado/rows/Snapshot.h"

#include "ado/Texts.h"
#include "ado/ValueText.h"
#include "ado/values/FieldValue.h"
#include "ado/values/Utf8.h"

namespace ADODB {

namespace {

// The whole characters in the first `bytes` bytes.
QByteArrayView firstOf(QByteArrayView utf8, qsizetype bytes)
{
    const auto goesOn = [&] { return (static_cast<unsigned char>(utf8[bytes]) & 0xc0) == 0x80; };
    for (int longest = 4; longest > 0 && bytes > 0 && goesOn(); --longest)
        --bytes;
    return utf8.first(bytes);
}

} // namespace

Snapshot::Snapshot(std::vector<FieldInfo> fields, RowStore rows)
    : m_fields(std::move(fields)), m_rows(std::move(rows))
{
}

bool Snapshot::contains(qint64 record, int column) const
{
    return record >= 1 && record <= records() && column >= 0 && column < static_cast<int>(m_fields.size());
}

QVariant Snapshot::value(qint64 record, int column) const
{
    return FieldValue::fromRaw(m_rows.cell(record - 1, column),
                               m_fields[static_cast<std::size_t>(column)].type);
}

QString Snapshot::text(qint64 record, int column) const
{
    const RawValue raw = m_rows.cell(record - 1, column);
    const DataTypeEnum type = m_fields[static_cast<std::size_t>(column)].type;
    // By far the most frequent case, so it avoids a QVariant.
    if (raw.kind == RawValue::Kind::Text && FieldValue::isText(type))
        return textFromUtf8(raw.bytes);
    // The text contains only their number, so they needn't be copied.
    if (raw.kind == RawValue::Kind::Blob)
        return Texts::bytes.arg(raw.bytes.size(), QString::number(raw.bytes.size()));
    return ValueText(FieldValue::fromRaw(raw, type));
}

QString Snapshot::beginning(qint64 record, int column, qsizetype length) const
{
    constexpr qsizetype mostBytes = 3; // of UTF-8 per UTF-16 code unit
    const RawValue raw = m_rows.cell(record - 1, column);
    const DataTypeEnum type = m_fields[static_cast<std::size_t>(column)].type;
    const bool isText = raw.kind == RawValue::Kind::Text && (FieldValue::isText(type) || type == adVariant);
    if (isText && raw.bytes.size() > mostBytes * length)
        return textFromUtf8(firstOf(raw.bytes, mostBytes * length));
    return text(record, column);
}

bool Snapshot::isNull(qint64 record, int column) const
{
    return m_rows.cell(record - 1, column).kind == RawValue::Kind::Null;
}

void Snapshot::replace(qint64 record, const RowStore &stored)
{
    m_rows.replace(record - 1, stored.row(0));
}

void Snapshot::append(const RowStore &stored)
{
    m_rows.dropBegunRow(); // an unfinished row, left when the disk was full
    for (const RawValue &cell : stored.row(0))
        m_rows.add(cell);
    m_rows.endRow();
}

} // namespace ADODB
