#pragma once

#include "ado/providers/odbc/reading/OdbcLongValue.h"
#include "ado/providers/odbc/reading/OdbcReader.h"

namespace ADODB {

// Reads blocks of rows into arrays. A value that is too long for its place is read again individually, if the
// driver supports that.
class OdbcBlockReader : public OdbcReader
{
public:
    OdbcBlockReader(const OdbcHandle &statement, const std::vector<OdbcColumn> &columns, bool canAskAgain);
    ~OdbcBlockReader() override;
    Q_DISABLE_COPY_MOVE(OdbcBlockReader)

    // Whether every value should fit in its place, judging by the column descriptions.
    static bool haveRoom(const std::vector<OdbcColumn> &columns);

    bool fetch(const OdbcWatch &watch) override;
    bool append(RowStore &rows) override;

private:
    struct Bound
    {
        OdbcTypes::Form form;
        SQLLEN width;    // bytes per place
        SQLLEN capacity; // those of them that a value can use
        std::vector<char> values;
        std::vector<SQLLEN> lengths;
    };

    bool appendLong(RowStore &rows, std::size_t row, int column);

    const OdbcHandle &m_statement;
    bool m_canAskAgain;
    std::vector<Bound> m_columns;
    std::vector<SQLUSMALLINT> m_states;
    SQLULEN m_fetched = 0;
    OdbcLongValue m_long;
    OdbcValue m_value;
};

} // namespace ADODB
