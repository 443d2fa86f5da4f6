#include "ado/providers/odbc/reading/OdbcCatalogueAnswers.h"

#include "ado/providers/odbc/OdbcHandle.h"
#include "ado/providers/odbc/reading/OdbcLongValue.h"

namespace ADODB {

void forEachAnswer(const std::shared_ptr<OdbcConnection> &connection,
                   const std::function<SQLRETURN(SQLHSTMT)> &ask, const std::vector<int> &wanted,
                   const std::function<void(const QStringList &)> &see)
{
    const OdbcHandle statement(connection);
    if (!succeeded(ask(statement.get())))
        return;
    OdbcLongValue value;
    while (statement.fetch()) {
        QStringList row;
        for (const int column : wanted) {
            SQLLEN length = 0;
            const SQLRETURN code = value.read(statement, column - 1, OdbcTypes::Form::Text, length);
            row += succeeded(code) && length > 0
                       ? QString::fromUtf16(reinterpret_cast<const char16_t *>(value.data()),
                                            length / qsizetype{sizeof(char16_t)})
                       : QString();
        }
        see(row);
    }
}

QString storedName(const QString &name, bool quoted, SQLUSMALLINT identifierCase)
{
    if (!quoted && identifierCase == SQL_IC_UPPER)
        return name.toUpper();
    if (!quoted && identifierCase == SQL_IC_LOWER)
        return name.toLower();
    return name;
}

} // namespace ADODB
