#include "ado/providers/odbc/reading/OdbcStatement.h"

#include "ado/Error.h"
#include "ado/Texts.h"
#include "ado/providers/odbc/OdbcHandle.h"
#include "ado/providers/odbc/OdbcWatch.h"
#include "ado/providers/odbc/reading/OdbcQuery.h"
#include "ado/providers/odbc/reading/OdbcRefusal.h"
#include "ado/providers/odbc/writing/OdbcRowWriter.h"
#include "ado/rows/RowStore.h"
#include "sql/SqlScanner.h"

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

namespace {

// Waits for the tables of a statement in a call that can be stopped, where preparing the statement can't be.
// From then on they are this transaction's.
void waitForTables(const std::shared_ptr<OdbcConnection> &connection, const OdbcEngine &engine,
                   const SqlScanner &statement, const OdbcPatience &patience)
{
    if (engine.explain.isEmpty() || !isExplainable(statement))
        return;
    const OdbcHandle handle(connection);
    handle.prepare(engine.explain + statement.withoutSemicolon());
    SQLSMALLINT parameters = 0;
    handle.check(SQLNumParams(handle.get(), &parameters));
    if (parameters > 0) // which nobody gives; reported later
        return;
    handle.check(OdbcWatch(handle, patience).run([&handle] { return SQLExecute(handle.get()); }));
}

} // namespace

OdbcStatement::OdbcStatement(std::shared_ptr<OdbcSession> session, const QString &sql, Access access,
                             const std::function<bool()> &shouldContinue)
    : m_session(std::move(session)), m_connection(m_session->connection())
{
    const OdbcEngine &engine = m_session->engine();
    m_session->learnQuoting(sql);
    const SqlScanner scanner(sql, engine.dialect, engine.quoting);
    refuseUnlessQuery(scanner);
    m_reading.emplace(m_connection, engine);
    const OdbcPatience patience{m_session->commandTimeout(), shouldContinue};
    waitForTables(m_connection, engine, scanner, patience);
    m_query = std::make_unique<OdbcQuery>(m_connection, engine, sql, patience);
    m_fields = m_query->fields();
    if (m_fields.empty())
        throw Error(dbErrPermissionDenied, Texts::notAQuery(), u"ODBC"_s, u"42000"_s);
    if (m_query->parameters() > 0)
        throw Error(dbErrInCommand, Texts::parameterInStatement().arg(u'?'), u"ODBC"_s, u"07002"_s);
    if (access == Access::ReadWrite)
        prepareWriter(scanner, patience);
    else
        m_whyReadOnly = Texts::openedReadOnly();
}

OdbcStatement::~OdbcStatement() = default;

int OdbcStatement::columns() const
{
    return static_cast<int>(m_query->fields().size());
}

void OdbcStatement::prepareWriter(const SqlScanner &statement, const OdbcPatience &patience)
{
    OdbcTarget target = OdbcTarget::find(m_connection, m_session->engine(), statement, m_fields);
    m_whyReadOnly = target.whyReadOnly;
    if (!m_whyReadOnly.isEmpty())
        return;
    // The statement that also gives the hidden key takes the place of the user's.
    if (!target.statement.isEmpty())
        m_query = std::make_unique<OdbcQuery>(m_connection, m_session->engine(), target.statement, patience);
    for (std::size_t i = 0; i < m_fields.size(); ++i) {
        if (!target.columns[i].isEmpty())
            m_fields[i].attributes |= adFldUpdatable;
    }
    for (const auto &key : target.key) {
        if (target.isRealKey && key.column < static_cast<int>(m_fields.size()))
            m_fields[static_cast<std::size_t>(key.column)].attributes |= adFldKeyColumn;
    }
    m_writer = std::make_unique<OdbcRowWriter>(m_session, std::move(target), m_query->types());
}

void OdbcStatement::fetch(RowStore &rows, const std::function<bool()> &shouldContinue)
{
    m_query->read(rows, {m_session->commandTimeout(), shouldContinue});
    m_reading.reset();
}

} // namespace ADODB
