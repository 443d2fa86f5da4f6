#include "ado/providers/access/file/AccessKeyIndex.h"

#include "ado/providers/access/sql/AccessCollation.h"

#include <QtCore/QHashFunctions>

#include <algorithm>

namespace ADODB {

namespace {

std::size_t hashOfText(QByteArrayView utf8)
{
    return qHash(QString::fromUtf8(utf8).toCaseFolded());
}

} // namespace

AccessKeyIndex::AccessKeyIndex(AccessReader &reader, int column)
{
    const auto family = AccessTypes::familyOf(reader.table().columns[static_cast<std::size_t>(column)].type);
    reader.rewind();
    while (reader.next()) {
        const RawValue value = reader.value(column);
        if (value.kind == RawValue::Kind::Null)
            continue; // Null is equal to nothing
        if (const auto hash = hashOf(value, family))
            m_entries.push_back({*hash, reader.position()});
        else
            m_others.push_back(reader.position());
    }
    std::sort(m_entries.begin(), m_entries.end(), [](const Entry &a, const Entry &b) {
        return a.hash != b.hash ? a.hash < b.hash : a.position < b.position;
    });
}

std::optional<std::size_t> AccessKeyIndex::hashOf(const RawValue &value, AccessTypes::Family family)
{
    using AccessTypes::Family;
    if (value.kind == RawValue::Kind::Text && family == Family::Text)
        return hashOfText(value.bytes);
    if (value.kind == RawValue::Kind::Text && family == Family::Date)
        return hashOfText(AccessCollation::comparedDate(value.bytes));
    if (family != Family::Number)
        return {};
    if (value.kind == RawValue::Kind::Integer)
        return qHash(static_cast<double>(value.integer));
    if (value.kind == RawValue::Kind::Real)
        return qHash(value.real);
    return {};
}

std::vector<qint64> AccessKeyIndex::find(std::size_t hash) const
{
    const auto range = std::equal_range(m_entries.begin(), m_entries.end(), Entry{hash, 0},
                                        [](const Entry &a, const Entry &b) { return a.hash < b.hash; });
    std::vector<qint64> positions = m_others;
    for (auto entry = range.first; entry != range.second; ++entry)
        positions.push_back(entry->position);
    return positions;
}

} // namespace ADODB
