#pragma once

#include "ado/providers/access/file/AccessReader.h"

namespace ADODB {

// Reads a table of the file's own, whose columns are known by their names. The file and the table must
// outlive it. Throws Error.
class AccessNamedReader
{
public:
    AccessNamedReader(const AccessFile &file, const AccessTable &table) : m_reader(file, table) {}

    bool next() { return m_reader.next(); }
    // Null for a column that there is not; the bytes stay valid until the next value or row is asked for.
    RawValue value(QLatin1StringView name);
    QString text(QLatin1StringView name) { return QString::fromUtf8(value(name).bytes); }
    qint64 integer(QLatin1StringView name) { return value(name).integer; }

private:
    AccessReader m_reader;
};

} // namespace ADODB
