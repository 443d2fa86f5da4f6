#pragma once

#include "ado/providers/access/file/AccessFile.h"
#include "ado/providers/access/file/AccessRow.h"
#include "ado/values/RawValue.h"

namespace ADODB {

// Reads the rows of one table one at a time, and of each row only the requested fields. The file and the
// table must outlive it. All members can throw Error.
class AccessReader
{
public:
    AccessReader(const AccessFile &file, const AccessTable &table);

    const AccessTable &table() const { return m_table; }
    // Moves before the first row.
    void rewind();
    // Moves to the next row. Returns false after the last one.
    bool next();

    // Identifies the current row while the file is open. Pass it to seek() to return to the row.
    qint64 position() const;
    void seek(qint64 position);

    // The bytes are valid until the next call of value() or next().
    RawValue value(int column);

private:
    bool isDataPage() const;
    void take(const AccessPage::Row &row);

    const AccessFile &m_file;
    const AccessTable &m_table;
    std::size_t m_nextPage = 0;
    int m_nextRow = 0;
    int m_rows = 0; // on the current page
    std::shared_ptr<const AccessPage> m_page;
    std::shared_ptr<const AccessPage> m_elsewhere; // contains the row if it was moved to another page
    AccessRow m_row;
    QByteArray m_bytes;
};

} // namespace ADODB
