#include "ado/providers/access/AccessSession.h"

#include "ado/Error.h"
#include "ado/Texts.h"
#include "ado/providers/access/file/AccessFile.h"
#include "ado/providers/access/file/AccessTypes.h"
#include "ado/providers/access/functions/AccessFunctions.h"
#include "ado/providers/access/sql/AccessCollation.h"
#include "ado/providers/access/sql/AccessDialect.h"
#include "ado/providers/access/sql/AccessDistinctRow.h"
#include "ado/providers/access/sql/AccessModule.h"
#include "ado/providers/access/sql/AccessQueries.h"
#include "sql/SqlScanner.h"

namespace ADODB {

using KOVAVSFDataGridLib::SqlScanner;

namespace {

// The query exists in Access, so "no such table" would confuse the user.
void throwIfLeftOut(const SqlScanner &statement, const QStringList &queries)
{
    for (qsizetype i = 0; i < statement.count(); ++i) {
        if (statement.isName(i) && queries.contains(statement.name(i), Qt::CaseInsensitive))
            throw Error(dbErrNoTable, Texts::accessQuery().arg(statement.name(i)));
    }
}

} // namespace

AccessSession::AccessSession(const QString &path, const QString &password)
    : SqliteSession(SqliteEngine{AccessTypes::applyDeclaration, Texts::accessReadOnly()})
{
    const auto file = std::make_shared<const AccessFile>(path, password);
    m_tables = file->tables();
    AccessCollation::install(db(), file->language());
    AccessFunctions::install(db());
    AccessModule::install(db(), file);
    m_queriesLeftOut = AccessQueries::install(*this, *file);
    beginWatch();
}

std::unique_ptr<Statement> AccessSession::prepare(const QString &sql, Access access,
                                                  const std::function<bool()> &shouldContinue)
{
    try {
        return SqliteSession::prepare(AccessDialect::toSqlite(AccessDistinctRow::asGrouping(sql, m_tables)),
                                      access, shouldContinue);
    } catch (const Error &error) {
        if (error.is(dbErrNoTable))
            throwIfLeftOut(SqlScanner(sql), m_queriesLeftOut);
        throw;
    }
}

} // namespace ADODB
