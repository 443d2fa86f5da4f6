#pragma once

#include <QtCore/QStringList>

#include <functional>

// The ODBC drivers that some systems have installed.
namespace AdoTest {

inline const QStringList driver18{
    QStringLiteral("MariaDB Unicode"), QStringLiteral("ODBC Driver 17 for SQL Server"),
    QStringLiteral("ODBC Driver 18 for SQL Server"), QStringLiteral("SQL Server")};
inline const QStringList driver17{QStringLiteral("FreeTDS"), QStringLiteral("ODBC Driver 13 for SQL Server"),
                                  QStringLiteral("ODBC Driver 17 for SQL Server"),
                                  QStringLiteral("SQL Server Native Client 11.0")};
inline const QStringList nativeClient{QStringLiteral("SQL Server"),
                                      QStringLiteral("SQL Server Native Client 10.0"),
                                      QStringLiteral("SQL Server Native Client 11.0")};
inline const QStringList plainWindows{QStringLiteral("Microsoft Access Driver (*.mdb)"),
                                      QStringLiteral("SQL Server")};
inline const QStringList freeTds{QStringLiteral("FreeTDS"), QStringLiteral("PostgreSQL Unicode"),
                                 QStringLiteral("SQLite3")};
inline const QStringList oracle{
    QStringLiteral("Microsoft ODBC for Oracle"), QStringLiteral("Oracle 19 ODBC driver"),
    QStringLiteral("Oracle in instantclient_21_3"), QStringLiteral("Oracle in OraHome92")};
inline const QStringList oldOracle{QStringLiteral("Microsoft ODBC for Oracle"), QStringLiteral("SQL Server")};
inline const QStringList office{QStringLiteral("Microsoft Access Driver (*.mdb)"),
                                QStringLiteral("Microsoft Access Driver (*.mdb, *.accdb)")};

inline std::function<QStringList()> are(const QStringList &installed)
{
    return [&installed] { return installed; };
}

} // namespace AdoTest
