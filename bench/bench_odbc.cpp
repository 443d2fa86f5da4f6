// What a recordset costs over ODBC alone: reads a statement's result with Recordset::Open and with a bare
// loop that fetches blocks of columns bound by their types and keeps none, in turn, each in a process of its
// own so that the memory is its own: at most, and once the result has been read. Needs a server:
//
//     bench_odbc 'Driver={PostgreSQL Unicode};Server=…;UID=…;PWD=…' 'SELECT * FROM big'
//
// The connection string is passed on in the environment, where no list of processes shows it. Unix only.

#include "ado/Connection.h"
#include "ado/Error.h"
#include "ado/Recordset.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtCore/QProcess>

#include <sql.h>
#include <sqlext.h>
#include <sys/resource.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int rounds = 3;
constexpr const char *variable = "KOVA_BENCH_ODBC";

[[noreturn]] void stop(const char *why)
{
    std::fprintf(stderr, "bench_odbc: %s\n", why);
    std::exit(1);
}

struct Measured
{
    qint64 rows;
    double megabytesKept;
};

double megabytesInUse()
{
    QFile file(u"/proc/self/statm"_s);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    constexpr double pagesPerMegabyte = 256;
    return file.readAll().split(' ').value(1).toDouble() / pagesPerMegabyte;
}

Measured recordset(const QString &connectionString, const QString &sql)
{
    const auto connection = std::make_shared<ADODB::Connection>();
    connection->Open(connectionString);
    ADODB::Recordset recordset;
    recordset.SetProgress([](qint64) { return true; });
    recordset.Open(sql, connection, ADODB::adOpenKeyset, ADODB::adLockReadOnly, ADODB::adCmdText);
    return {recordset.RecordCount(), megabytesInUse()};
}

// Binds numbers as numbers, timestamps as timestamps, and everything else as text.
SQLSMALLINT boundType(SQLHSTMT statement, SQLUSMALLINT column)
{
    SQLLEN type = SQL_UNKNOWN_TYPE;
    SQLColAttribute(statement, column, SQL_DESC_CONCISE_TYPE, nullptr, 0, nullptr, &type);
    switch (type) {
    case SQL_BIT:
    case SQL_TINYINT:
    case SQL_SMALLINT:
    case SQL_INTEGER:
    case SQL_BIGINT:
        return SQL_C_SBIGINT;
    case SQL_REAL:
    case SQL_FLOAT:
    case SQL_DOUBLE:
        return SQL_C_DOUBLE;
    case SQL_TYPE_DATE:
        return SQL_C_TYPE_DATE;
    case SQL_TYPE_TIMESTAMP:
        return SQL_C_TYPE_TIMESTAMP;
    default:
        return SQL_C_WCHAR;
    }
}

// With the one setting that keeps PostgreSQL's driver from storing the whole result.
Measured bareLoop(const QString &connectionString, const QString &sql)
{
    constexpr std::size_t rows = 1000;
    constexpr std::size_t width = 512;
    SQLHENV environment = nullptr;
    SQLHDBC connection = nullptr;
    SQLHSTMT statement = nullptr;
    QByteArray text = (connectionString + u";UseDeclareFetch=1;Fetch=5000"_s).toUtf8();
    QByteArray query = sql.toUtf8();
    SQLAllocHandle(SQL_HANDLE_ENV, nullptr, &environment);
    SQLSetEnvAttr(environment, SQL_ATTR_ODBC_VERSION, reinterpret_cast<SQLPOINTER>(SQL_OV_ODBC3), 0);
    SQLAllocHandle(SQL_HANDLE_DBC, environment, &connection);
    if (!SQL_SUCCEEDED(SQLDriverConnect(connection, nullptr, reinterpret_cast<SQLCHAR *>(text.data()),
                                        SQL_NTS, nullptr, 0, nullptr, SQL_DRIVER_NOPROMPT)))
        stop("the bare loop could not connect");
    SQLAllocHandle(SQL_HANDLE_STMT, connection, &statement);
    SQLULEN fetched = 0;
    SQLSetStmtAttr(statement, SQL_ATTR_ROW_ARRAY_SIZE, reinterpret_cast<SQLPOINTER>(rows), 0);
    SQLSetStmtAttr(statement, SQL_ATTR_ROWS_FETCHED_PTR, &fetched, 0);
    if (!SQL_SUCCEEDED(SQLExecDirect(statement, reinterpret_cast<SQLCHAR *>(query.data()), SQL_NTS)))
        stop("the bare loop could not run the statement");
    SQLSMALLINT columns = 0;
    SQLNumResultCols(statement, &columns);
    std::vector<std::vector<char>> values(static_cast<std::size_t>(columns), std::vector<char>(rows * width));
    std::vector<std::vector<SQLLEN>> lengths(values.size(), std::vector<SQLLEN>(rows));
    for (std::size_t i = 0; i < values.size(); ++i) {
        const auto column = static_cast<SQLUSMALLINT>(i + 1);
        SQLBindCol(statement, column, boundType(statement, column), values[i].data(), width,
                   lengths[i].data());
    }
    qint64 count = 0;
    while (SQL_SUCCEEDED(SQLFetch(statement)))
        count += static_cast<qint64>(fetched);
    SQLFreeHandle(SQL_HANDLE_STMT, statement);
    const double kept = megabytesInUse();
    SQLDisconnect(connection);
    SQLFreeHandle(SQL_HANDLE_DBC, connection);
    SQLFreeHandle(SQL_HANDLE_ENV, environment);
    return {count, kept};
}

// In a separate process: "rows seconds peak kept".
void work(const QString &mode, const QString &sql)
{
    const QString connectionString = qEnvironmentVariable(variable);
    QElapsedTimer timer;
    timer.start();
    const Measured measured =
        mode == "bare"_L1 ? bareLoop(connectionString, sql) : recordset(connectionString, sql);
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    std::printf("%lld %.3f %.1f %.1f\n", static_cast<long long>(measured.rows),
                static_cast<double>(timer.nsecsElapsed()) / 1e9, static_cast<double>(usage.ru_maxrss) / 1024,
                measured.megabytesKept);
}

QStringList measure(const QString &mode, const QString &sql)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(), {u"--work"_s, mode, sql});
    process.waitForFinished(-1);
    const QStringList answer = QString::fromUtf8(process.readAll()).simplified().split(u' ');
    if (process.exitCode() != 0 || answer.size() != 4)
        stop("a measurement failed");
    return answer;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    try {
        if (arguments.size() == 4 && arguments.at(1) == "--work"_L1) {
            work(arguments.at(2), arguments.at(3));
            return 0;
        }
    } catch (const ADODB::Error &error) {
        stop(error.what());
    }
    if (arguments.size() != 3)
        stop("needs a connection string and a statement");
    qputenv(variable, arguments.at(1).toUtf8());
    double best[2] = {1e9, 1e9};
    for (int round = 0; round < rounds; ++round) {
        for (const int kind : {0, 1}) {
            const QString mode = kind == 0 ? u"bare"_s : u"recordset"_s;
            const QStringList answer = measure(mode, arguments.at(2));
            std::printf("%-10s %s rows %8s s %8s MB at most %8s MB then\n", qUtf8Printable(mode),
                        qUtf8Printable(answer.at(0)), qUtf8Printable(answer.at(1)),
                        qUtf8Printable(answer.at(2)), qUtf8Printable(answer.at(3)));
            best[kind] = std::min(best[kind], answer.at(1).toDouble());
        }
    }
    std::printf("ratio of the best: %.2f\n", best[1] / best[0]);
    return 0;
}
