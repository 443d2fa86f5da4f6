#include "ado/providers/odbc/reading/OdbcBlockReader.h"

#include "ado/Error.h"
#include "ado/Texts.h"
#include "ado/providers/odbc/OdbcHandle.h"
#include "ado/providers/odbc/waiting/OdbcWatch.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

using OdbcTypes::Form;

namespace {

constexpr SQLLEN blockBytes = SQLLEN{1} << 20;
constexpr SQLLEN mostRows = 1000;
// The longest value that gets a full-size place in the block. Most values fit, and larger places would mean
// fewer rows per block.
constexpr qint64 mostUnits = 256;
constexpr qint64 mostDigits = 64;

bool fits(const OdbcColumn &column)
{
    switch (OdbcLayout::of(column.form).cType) {
    case SQL_C_WCHAR:
    case SQL_C_BINARY:
        return column.size > 0 && column.size <= mostUnits;
    default:
        return column.size < mostDigits;
    }
}

SQLLEN widthOf(const OdbcColumn &column)
{
    const OdbcLayout layout = OdbcLayout::of(column.form);
    if (layout.size > 0)
        return layout.size;
    if (layout.cType == SQL_C_CHAR)
        return mostDigits + layout.terminator;
    const qint64 units = column.size > 0 ? std::min(column.size, mostUnits) : mostUnits;
    // Always even for wide text, because the next value in the array must be aligned.
    return layout.cType == SQL_C_WCHAR ? (units + 1) * layout.terminator : units;
}

} // namespace

OdbcReader::~OdbcReader() = default;

OdbcBlockReader::OdbcBlockReader(const OdbcHandle &statement, const std::vector<OdbcColumn> &columns,
                                 bool canAskAgain)
    : m_statement(statement), m_canAskAgain(canAskAgain)
{
    SQLLEN rowBytes = 0;
    for (const OdbcColumn &column : columns)
        rowBytes += widthOf(column) + SQLLEN{sizeof(SQLLEN)};
    const auto rows =
        static_cast<std::size_t>(std::clamp<SQLLEN>(blockBytes / std::max<SQLLEN>(rowBytes, 1), 1, mostRows));
    m_states.resize(rows);
    m_statement.set(SQL_ATTR_ROW_ARRAY_SIZE, rows);
    m_statement.set(SQL_ATTR_ROW_STATUS_PTR, m_states.data());
    m_statement.set(SQL_ATTR_ROWS_FETCHED_PTR, &m_fetched);
    m_columns.reserve(columns.size());
    for (const OdbcColumn &column : columns) {
        const OdbcLayout layout = OdbcLayout::of(column.form);
        const SQLLEN width = widthOf(column);
        Bound &bound = m_columns.emplace_back(Bound{column.form, width, width - layout.terminator,
                                                    std::vector<char>(static_cast<std::size_t>(width) * rows),
                                                    std::vector<SQLLEN>(rows)});
        m_statement.check(SQLBindCol(m_statement.get(), static_cast<SQLUSMALLINT>(m_columns.size()),
                                     layout.cType, bound.values.data(), width, bound.lengths.data()));
    }
}

// Unbinds the columns, so that the statement does not write into freed memory.
OdbcBlockReader::~OdbcBlockReader()
{
    SQLFreeStmt(m_statement.get(), SQL_CLOSE);
    SQLFreeStmt(m_statement.get(), SQL_UNBIND);
    SQLSetStmtAttrW(m_statement.get(), SQL_ATTR_ROW_ARRAY_SIZE, asPointer(1), 0);
    SQLSetStmtAttrW(m_statement.get(), SQL_ATTR_ROW_STATUS_PTR, nullptr, 0);
    SQLSetStmtAttrW(m_statement.get(), SQL_ATTR_ROWS_FETCHED_PTR, nullptr, 0);
}

bool OdbcBlockReader::haveRoom(const std::vector<OdbcColumn> &columns)
{
    return std::all_of(columns.begin(), columns.end(), fits);
}

bool OdbcBlockReader::fetch(const OdbcWatch &watch)
{
    m_fetched = 0;
    const SQLRETURN code = watch.run([this] { return SQLFetch(m_statement.get()); });
    if (code == SQL_NO_DATA)
        return false;
    m_statement.check(code);
    // Success with warnings: truncated values, or rows that could not be read.
    if (code == SQL_SUCCESS_WITH_INFO &&
        std::find(m_states.begin(), m_states.begin() + static_cast<std::ptrdiff_t>(m_fetched),
                  SQL_ROW_ERROR) != m_states.begin() + static_cast<std::ptrdiff_t>(m_fetched))
        m_statement.check(SQL_ERROR);
    return true;
}

bool OdbcBlockReader::append(RowStore &rows)
{
    for (std::size_t row = 0; row < m_fetched; ++row) {
        int index = 0;
        for (const Bound &column : m_columns) {
            const SQLLEN length = column.lengths[row];
            const char *value = column.values.data() + row * static_cast<std::size_t>(column.width);
            if (length == SQL_NULL_DATA)
                rows.addNull();
            else if (length >= 0 && length <= column.capacity)
                m_value.append(rows, column.form, value, length);
            else if (!appendLong(rows, row, index))
                return false;
            ++index;
        }
        rows.endRow();
    }
    return true;
}

bool OdbcBlockReader::appendLong(RowStore &rows, std::size_t row, int column)
{
    if (!m_canAskAgain)
        return false;
    m_statement.check(SQLSetPos(m_statement.get(), row + 1, SQL_POSITION, SQL_LOCK_NO_CHANGE));
    const Form form = m_columns[static_cast<std::size_t>(column)].form;
    SQLLEN length = 0;
    m_statement.check(m_long.read(m_statement, column, form, length));
    if (length == SQL_NULL_DATA)
        return false; // it was not Null a moment ago
    m_value.append(rows, form, m_long.data(), length);
    return true;
}

} // namespace ADODB
