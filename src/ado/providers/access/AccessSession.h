#pragma once

#include "ado/providers/access/file/AccessColumn.h"
#include "ado/providers/sqlite/SqliteSession.h"

#include <QtCore/QStringList>

namespace ADODB {

// An open Access file. SQLite runs the statements in memory, on virtual tables that read the file. The file
// is never written.
class AccessSession : public SqliteSession
{
public:
    AccessSession(const QString &path, const QString &password);

    // Accepts SQLite's SQL and what AccessDialect and AccessDistinctRow translate.
    std::unique_ptr<Statement> prepare(const QString &sql, Access access,
                                       const std::function<bool()> &shouldContinue) override;

private:
    std::vector<AccessTable> m_tables;
    QStringList m_queriesLeftOut;
};

} // namespace ADODB
