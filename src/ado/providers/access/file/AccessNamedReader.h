#pragma once

#include "ado/providers/access/file/AccessReader.h"

namespace ADODB {

// Reads an internal table of the file, with its columns by name. The file and the table must outlive it. All
// members can throw Error.
class AccessNamedReader
{
public:
    AccessNamedReader(const AccessFile &file, const AccessTable &table) : m_reader(file, table) {}

    bool next() { return m_reader.next(); }
    // Null if there is no such column. The bytes are valid until the next call of value() or next().
    RawValue value(QLatin1StringView name);
    QString text(QLatin1StringView name) { return QString::fromUtf8(value(name).bytes); }
    qint64 integer(QLatin1StringView name) { return value(name).integer; }

private:
    AccessReader m_reader;
};

} // namespace ADODB
