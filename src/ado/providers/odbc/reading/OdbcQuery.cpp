#include "ado/providers/odbc/reading/OdbcQuery.h"

#include "ado/providers/odbc/OdbcEngine.h"
#include "ado/providers/odbc/OdbcHandle.h"
#include "ado/providers/odbc/reading/OdbcBlockReader.h"
#include "ado/providers/odbc/reading/OdbcDescription.h"
#include "ado/providers/odbc/reading/OdbcRefusal.h"
#include "ado/providers/odbc/reading/OdbcValueReader.h"
#include "ado/providers/odbc/waiting/OdbcWatch.h"
#include "ado/rows/RowStore.h"
#include "ado/rows/VectorRegisters.h"
#include "ado/values/FieldValue.h"
#include "sql/SqlScanner.h"

#include <QtCore/QStringList>

#include <algorithm>
#include <atomic>

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

using KOVAVSFDataGridLib::SqlScanner;

namespace {

bool isDay(const FieldInfo &field)
{
    return field.type == adDBDate || field.type == adDBTimeStamp;
}

// For a number or a date, the size in bytes does not tell how long it is as text.
OdbcColumn columnOf(const FieldInfo &field, bool loose)
{
    constexpr qint64 longestAsText = 60;
    const OdbcTypes::Form form = OdbcTypes::formOf(field.type, loose);
    const bool isSized = FieldValue::isText(field.type) || form == OdbcTypes::Form::Bytes;
    return {form, isSized ? field.definedSize : longestAsText};
}

// Returns false if the rows must be read again, value by value.
bool appendAll(OdbcReader &reader, RowStore &rows, const OdbcWatch &watch)
{
    for (;;) {
        emptyUpperRegisters(); // a thread begins with what is in the registers of the one that starts it
        if (!reader.fetch(watch))
            return true;
        if (!reader.append(rows))
            return false;
        watch.ask(rows);
    }
}

} // namespace

OdbcQuery::OdbcQuery(const std::shared_ptr<OdbcConnection> &connection, const OdbcEngine &engine,
                     const QString &sql, int timeout)
    : m_connection(connection), m_engine(engine), m_statement(std::make_unique<OdbcHandle>(connection))
{
    // Some drivers take a comment after the semicolon as another statement.
    m_text = SqlScanner(sql, m_engine.dialect, m_engine.quoting).withoutSemicolon();
    prepare(timeout);
    m_fields = describeColumns(*m_statement);
    for (std::size_t i = 0; i < m_fields.size(); ++i) {
        m_types.push_back(declaredType(*m_statement, static_cast<int>(i)));
        m_columns.push_back(columnOf(m_fields[i], m_engine.looseTypes));
    }
    if (m_engine.bendsDates && std::any_of(m_fields.begin(), m_fields.end(), isDay))
        askForDatesAsText();
}

OdbcQuery::~OdbcQuery() = default;

// Also requests the columns, because some drivers prepare a statement only when they have to.
void OdbcQuery::prepare(int timeout)
{
    m_statement->check(OdbcWatch(*m_statement, timeout).run([this] {
        SQLHSTMT const statement = m_statement->get();
        const SQLRETURN code = SQLPrepareW(statement, wide(m_text), static_cast<SQLINTEGER>(m_text.size()));
        SQLSMALLINT columns = 0;
        return succeeded(code) ? SQLNumResultCols(statement, &columns) : code;
    }));
}

int OdbcQuery::parameters() const
{
    SQLSMALLINT count = 0;
    m_statement->check(SQLNumParams(m_statement->get(), &count));
    return count;
}

// Has the server return such dates as text, because the driver would silently replace those that it can't
// represent. The order of the rows is kept, as the outer statement has no ORDER BY.
void OdbcQuery::askForDatesAsText()
{
    QStringList names;
    QStringList values;
    for (const FieldInfo &field : m_fields) {
        names += u"c%1"_s.arg(names.size());
        values += isDay(field) ? names.last() + "::text"_L1 : names.last();
    }
    m_text = "SELECT "_L1 + values.join(", "_L1) + " FROM (\n"_L1 + m_text + "\n) AS kova("_L1 +
             names.join(", "_L1) + u')';
    m_statement = std::make_unique<OdbcHandle>(m_connection);
    m_statement->prepare(m_text);
}

void OdbcQuery::readResult(RowStore &rows, int timeout)
{
    const bool hasCursor =
        m_engine.portion > 0 && isExplainable(SqlScanner(m_text, m_engine.dialect, m_engine.quoting));
    if (hasCursor && readPortions(rows, timeout))
        return;
    rows.clear();
    read(rows, timeout);
}

void OdbcQuery::read(RowStore &rows, int timeout)
{
    const OdbcWatch watch(*m_statement, timeout);
    bool done = false;
    if (m_engine.asksAgain || OdbcBlockReader::haveRoom(m_columns)) {
        OdbcBlockReader reader(*m_statement, m_columns, m_engine.asksAgain);
        done = readAll(reader, rows, watch);
    }
    if (!done) {
        rows.clear();
        // SQLite's driver would otherwise continue where it stopped.
        m_statement->prepare(m_text);
        OdbcValueReader reader(*m_statement, m_columns);
        readAll(reader, rows, watch);
    }
    SQLFreeStmt(m_statement->get(), SQL_CLOSE);
}

bool OdbcQuery::readAll(OdbcReader &reader, RowStore &rows, const OdbcWatch &watch)
{
    SQLHSTMT const statement = m_statement->get();
    const SQLRETURN code = watch.run([statement] { return SQLExecute(statement); });
    if (code == SQL_NO_DATA) // a change that matched no row and therefore returned none
        return true;
    m_statement->check(code);
    return appendAll(reader, rows, watch);
}

// The first portion arrives with the confirmation that the cursor is open.
bool OdbcQuery::readPortions(RowStore &rows, int timeout) const
{
    static std::atomic<quint64> cursors = 0;
    const QString cursor = u"kova_%1"_s.arg(++cursors);
    const QString next = u"FETCH %1 FROM %2"_s.arg(m_engine.portion).arg(cursor);
    const OdbcHandle portions(m_connection);
    SQLHSTMT const handle = portions.get();
    const OdbcWatch watch(portions, timeout);
    OdbcBlockReader reader(portions, m_columns, m_engine.asksAgain);
    const auto execute = [&](const QString &sql) {
        portions.check(watch.run(
            [&] { return SQLExecDirectW(handle, wide(sql), static_cast<SQLINTEGER>(sql.size())); }));
    };
    execute(u"DECLARE %1 NO SCROLL CURSOR FOR\n"_s.arg(cursor) + m_text + "\n;"_L1 + next);
    portions.check(watch.run([&] { return SQLMoreResults(handle); }));
    for (qint64 before = 0;; before = rows.rows()) {
        if (!appendAll(reader, rows, watch))
            return false;
        if (rows.rows() - before < m_engine.portion)
            return true;
        SQLFreeStmt(handle, SQL_CLOSE);
        execute(next);
    }
}

} // namespace ADODB
