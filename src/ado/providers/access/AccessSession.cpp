#include "ado/providers/access/AccessSession.h"

#include "ado/Error.h"
#include "ado/Texts.h"
#include "ado/providers/access/AccessCollation.h"
#include "ado/providers/access/AccessDialect.h"
#include "ado/providers/access/AccessFile.h"
#include "ado/providers/access/AccessFunctions.h"
#include "ado/providers/access/AccessModule.h"
#include "ado/providers/access/AccessQueries.h"
#include "ado/providers/access/AccessTypes.h"

namespace ADODB {

AccessSession::AccessSession(const QString &path)
    : SqliteSession(SqliteEngine{AccessTypes::applyDeclaration, Texts::accessReadOnly()})
{
    const auto file = std::make_shared<const AccessFile>(path);
    AccessCollation::install(db());
    AccessFunctions::install(db());
    AccessModule::install(db(), file);
    AccessQueries::install(*this, *file);
}

std::unique_ptr<Statement> AccessSession::prepare(const QString &sql, Access access,
                                                  const std::function<bool()> &goOn)
{
    return SqliteSession::prepare(AccessDialect::toSqlite(sql), access, goOn);
}

} // namespace ADODB
