#include "ado/providers/odbc/reading/OdbcLongValue.h"

#include "ado/providers/odbc/OdbcHandle.h"

#include <algorithm>

namespace ADODB {

SQLRETURN OdbcLongValue::read(const OdbcHandle &statement, int column, OdbcTypes::Form form, SQLLEN &length)
{
    const OdbcLayout layout = OdbcLayout::of(form);
    std::size_t have = 0;
    for (;;) {
        SQLLEN left = 0; // the length that remained before this piece, or SQL_NO_TOTAL
        const std::size_t room = m_bytes.size() - have;
        const SQLRETURN code =
            SQLGetData(statement.get(), static_cast<SQLUSMALLINT>(column + 1), layout.cType,
                       m_bytes.data() + have, static_cast<SQLLEN>(room), &left);
        if (code == SQL_NO_DATA) { // the value was already complete
            length = static_cast<SQLLEN>(have);
            return SQL_SUCCESS;
        }
        if (!succeeded(code) || left == SQL_NULL_DATA) {
            length = left;
            return code;
        }
        const auto terminator = static_cast<std::size_t>(layout.terminator);
        const bool cut = left == SQL_NO_TOTAL || static_cast<std::size_t>(left) > room - terminator;
        if (layout.size > 0 || !cut) {
            length = layout.size > 0 ? layout.size : static_cast<SQLLEN>(have) + left;
            return SQL_SUCCESS;
        }
        // A piece of wide text never ends in the middle of a code unit.
        have += terminator > 0 ? (room - terminator) / terminator * terminator : room;
        const std::size_t known = left == SQL_NO_TOTAL ? 0 : static_cast<std::size_t>(left) - room;
        m_bytes.resize(std::max(m_bytes.size() * 2, m_bytes.size() + known + 2 * terminator));
    }
}

} // namespace ADODB
