#pragma once

#include "ado/providers/access/file/AccessFile.h"
#include "ado/providers/access/file/AccessRow.h"
#include "ado/values/RawValue.h"

namespace ADODB {

// Reads the rows of one table, one at a time; of a row only the fields that are asked for. The file and the
// table must outlive it. Throws Error.
class AccessReader
{
public:
    AccessReader(const AccessFile &file, const AccessTable &table);

    const AccessTable &table() const { return m_table; }
    // Back before the first row.
    void rewind();
    // False behind the last row.
    bool next();

    // A number that identifies the current row as long as the file is open, and the way back to it.
    qint64 position() const;
    void seek(qint64 position);

    // The bytes stay valid until the next value or row is asked for.
    RawValue value(int column);

private:
    bool isDataPage() const;
    void take(const AccessPage::Row &row);

    const AccessFile &m_file;
    const AccessTable &m_table;
    std::size_t m_nextPage = 0;
    int m_nextRow = 0;
    int m_rows = 0; // of the page
    std::shared_ptr<const AccessPage> m_page;
    std::shared_ptr<const AccessPage> m_elsewhere; // holds the row when it did not fit into its page any more
    AccessRow m_row;
    QByteArray m_bytes;
};

} // namespace ADODB
