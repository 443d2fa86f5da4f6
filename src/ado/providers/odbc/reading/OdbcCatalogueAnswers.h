#pragma once

#include "ado/providers/odbc/OdbcApi.h"

#include <QtCore/QStringList>

#include <functional>
#include <memory>
#include <vector>

namespace ADODB {

class OdbcConnection;

// The full name of a table. Empty parts are not asked for.
struct OdbcTableName
{
    QString catalog;
    QString schema;
    QString table;
};

// A part of a name, as a function of the catalogue takes it. The text must outlive it.
class OdbcNamePart
{
public:
    explicit OdbcNamePart(const QString &text) : m_text(text) {}
    SQLWCHAR *text() const { return m_text.isEmpty() ? nullptr : wide(m_text); }
    SQLSMALLINT length() const { return static_cast<SQLSMALLINT>(m_text.size()); }

private:
    const QString &m_text;
};

// Asks the catalogue and calls `see` with each row's values in the wanted columns, which count from 1 and go
// up. What the driver does not answer, it does not know.
void forEachAnswer(const std::shared_ptr<OdbcConnection> &connection,
                   const std::function<SQLRETURN(SQLHSTMT)> &ask, const std::vector<int> &wanted,
                   const std::function<void(const QStringList &)> &see);

// As the database keeps a name that is written without quotes.
QString storedName(const QString &name, bool quoted, SQLUSMALLINT identifierCase);

} // namespace ADODB
