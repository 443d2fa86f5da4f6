#include "providers/empty/EmptySession.h"

#include "ado/Error.h"
#include "ado/Texts.h"
#include "providers/empty/EmptyStatement.h"

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

// The only statement it knows, so everything else is refused here: a second statement, one that changes data.
std::unique_ptr<Statement> EmptySession::prepare(const QString &sql, Access, const std::function<bool()> &)
{
    if (!m_isOpen)
        throw Error(adErrInvalidConnection, Texts::connectionClosed());
    if (sql.simplified().compare(tableStatement(u"numbers"_s), Qt::CaseInsensitive) != 0)
        throw Error(dbErrInCommand, Texts::statementFailed().arg(sql));
    return std::make_unique<EmptyStatement>(m_rows);
}

QString EmptySession::tableStatement(const QString &table) const
{
    return "SELECT * FROM "_L1 + table;
}

} // namespace ADODB
