// The scanner and the refusal: they hold together for every text, and what passes as one query is one to
// SQLite.
#include "FuzzInput.h"

#include "ado/Error.h"
#include "ado/providers/odbc/reading/OdbcRefusal.h"
#include "sql/SqlScanner.h"
#include "sql/select/SimpleSelect.h"

#include <sqlite3.h>

using namespace ADODB;
using namespace KOVAVSFDataGridLib;
using KovaTest::Require;

namespace {

void checkTokens(const SqlScanner &scanner)
{
    qsizetype end = 0;
    for (qsizetype i = 0; i < scanner.count(); ++i) {
        const SqlToken &token = scanner.at(i);
        Require(token.start >= end && token.length > 0 && token.depth >= 0);
        end = token.end();
        if (scanner.isName(i))
            scanner.name(i);
    }
    Require(end <= scanner.sql().size());
    Require(scanner.strayCharacter() < scanner.sql().size());
    Require(scanner.sql().startsWith(scanner.withoutSemicolon()));
    const SimpleSelect select = SimpleSelect::parse(scanner);
    if (select.fault == SimpleSelect::Fault::None)
        Require(select.listEnd <= select.sourceEnd && select.sourceEnd <= scanner.sql().size());
}

bool passes(const SqlScanner &scanner)
{
    try {
        refuseUnlessQuery(scanner);
        return true;
    } catch (const Error &error) {
        Require(!error.Description().isEmpty());
        return false;
    }
}

sqlite3 *database()
{
    static sqlite3 *const db = [] {
        sqlite3 *opened = nullptr;
        sqlite3_open(":memory:", &opened);
        sqlite3_exec(opened, "CREATE TABLE t(a, b, c)", nullptr, nullptr, nullptr);
        return opened;
    }();
    return db;
}

// SQLite prepares one statement and reports where it ends.
void checkWithSqlite(const QString &sql)
{
    const QByteArray text = sql.toUtf8();
    const char *tail = nullptr;
    sqlite3_stmt *statement = nullptr;
    if (sqlite3_prepare_v2(database(), text.constData(), static_cast<int>(text.size()), &statement, &tail) ==
        SQLITE_OK) {
        Require(sqlite3_stmt_readonly(statement) != 0 || sqlite3_stmt_isexplain(statement) != 0);
        sqlite3_finalize(statement);
        sqlite3_stmt *second = nullptr;
        const auto rest = static_cast<int>(text.constData() + text.size() - tail);
        Require(sqlite3_prepare_v2(database(), tail, rest, &second, nullptr) == SQLITE_OK && !second);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString sql = QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    for (const auto dialect :
         {SqlDialect::Standard, SqlDialect::PostgreSql, SqlDialect::MySql, SqlDialect::SqlServer}) {
        for (int mode = 0; mode < (dialect == SqlDialect::MySql ? 8 : 1); ++mode) {
            const SqlScanner scanner(sql, dialect, {(mode & 1) == 0, (mode & 2) != 0, (mode & 4) != 0});
            checkTokens(scanner);
            if (!passes(scanner))
                continue;
            for (qsizetype i = 0; i + 1 < scanner.count(); ++i)
                Require(!scanner.isSymbol(i, u';'));
            if (dialect == SqlDialect::Standard)
                checkWithSqlite(sql);
        }
    }
    return 0;
}
