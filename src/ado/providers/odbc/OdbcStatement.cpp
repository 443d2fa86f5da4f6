#include "ado/providers/odbc/OdbcStatement.h"

#include "ado/Error.h"
#include "ado/RowStore.h"
#include "ado/SqlScanner.h"
#include "ado/Texts.h"
#include "ado/providers/odbc/OdbcBlockReader.h"
#include "ado/providers/odbc/OdbcDescription.h"
#include "ado/providers/odbc/OdbcHandle.h"
#include "ado/providers/odbc/OdbcRefusal.h"
#include "ado/providers/odbc/OdbcValueReader.h"
#include "ado/providers/odbc/OdbcWatch.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

namespace {

bool isDay(const FieldInfo &field)
{
    return field.type == adDBDate || field.type == adDBTimeStamp;
}

// The statement without a semicolon at its end.
QString withoutEnd(const SqlScanner &statement)
{
    const qsizetype last = statement.count() - 1;
    return statement.isSymbol(last, u';') ? statement.sql().left(statement.at(last).start) : statement.sql();
}

} // namespace

OdbcStatement::OdbcStatement(std::shared_ptr<OdbcSession> session, const QString &sql, Access access)
    : m_session(std::move(session))
{
    const OdbcEngine &engine = m_session->engine();
    const SqlScanner scanner(sql, engine.dialect);
    refuseUnlessQuery(scanner);
    m_reading.emplace(m_session->connection(), engine);
    prepareQuery(sql);
    m_fields = describeColumns(*m_statement);
    for (const FieldInfo &field : m_fields)
        m_columns.push_back({OdbcTypes::formOf(field.type, engine.looseTypes), field.definedSize});
    m_whyReadOnly = access == Access::ReadOnly ? Texts::openedReadOnly() : Texts::readOnlyNoTable();
    if (engine.bendsDates && std::any_of(m_fields.begin(), m_fields.end(), isDay))
        askForDatesAsText(scanner);
}

OdbcStatement::~OdbcStatement() = default;

void OdbcStatement::prepareQuery(const QString &sql)
{
    m_statement = std::make_unique<OdbcHandle>(m_session->connection());
    m_statement->prepare(sql);
    if (m_statement->columns() == 0)
        throw Error(dbErrPermissionDenied, Texts::notAQuery(), u"ODBC"_s, u"42000"_s);
    SQLSMALLINT parameters = 0;
    m_statement->check(SQLNumParams(m_statement->get(), &parameters));
    if (parameters > 0)
        throw Error(dbErrInCommand, Texts::parameterInStatement().arg(u'?'), u"ODBC"_s, u"07002"_s);
}

// The server's own texts hold what the driver can't, and what it would silently make another date of. The
// order of the rows is the user's statement's, because nothing around it asks for another.
void OdbcStatement::askForDatesAsText(const SqlScanner &statement)
{
    QStringList names;
    QStringList values;
    for (const FieldInfo &field : m_fields) {
        names += u"c%1"_s.arg(names.size());
        values += isDay(field) ? names.last() + "::text"_L1 : names.last();
    }
    prepareQuery("SELECT "_L1 + values.join(", "_L1) + " FROM (\n"_L1 + withoutEnd(statement) +
                 "\n) AS kova("_L1 + names.join(", "_L1) + u')');
}

void OdbcStatement::fetch(RowStore &rows, const std::function<bool()> &goOn)
{
    const OdbcWatch watch(*m_statement, goOn, m_session->commandTimeout());
    bool done = false;
    if (OdbcBlockReader::canRead(*m_statement, m_columns)) {
        OdbcBlockReader reader(*m_statement, m_columns);
        done = readAll(reader, rows, watch);
    }
    if (!done) {
        rows = RowStore(columns());
        OdbcValueReader reader(*m_statement, m_columns);
        readAll(reader, rows, watch);
    }
    SQLFreeStmt(m_statement->get(), SQL_CLOSE);
    m_reading.reset();
}

bool OdbcStatement::readAll(OdbcReader &reader, RowStore &rows, const OdbcWatch &watch)
{
    SQLHSTMT const statement = m_statement->get();
    m_statement->check(watch.run([statement] { return SQLExecute(statement); }));
    while (reader.fetch(watch)) {
        if (!reader.append(rows))
            return false;
        watch.ask();
    }
    return true;
}

} // namespace ADODB
