#include "support/TestDatabase.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

namespace KovaTest {

namespace {

struct Handle
{
    explicit Handle(const QString &path) { sqlite3_open(path.toUtf8().constData(), &db); }
    ~Handle() { sqlite3_close(db); }
    Q_DISABLE_COPY_MOVE(Handle)
    sqlite3 *db = nullptr;
};

} // namespace

TestDatabase::TestDatabase(const QString &script, const QString &fileName)
    : m_path(m_folder.filePath(fileName))
{
    run(script);
}

void TestDatabase::run(const QString &script)
{
    const Handle handle(m_path);
    EXPECT_EQ(sqlite3_exec(handle.db, script.toUtf8().constData(), nullptr, nullptr, nullptr), SQLITE_OK)
        << sqlite3_errmsg(handle.db);
}

QString TestDatabase::ask(const QString &sql) const
{
    const Handle handle(m_path);
    sqlite3_stmt *statement = nullptr;
    EXPECT_EQ(sqlite3_prepare_v2(handle.db, sql.toUtf8().constData(), -1, &statement, nullptr), SQLITE_OK)
        << sqlite3_errmsg(handle.db);
    QString text;
    if (sqlite3_step(statement) == SQLITE_ROW) {
        const void *bytes = sqlite3_column_blob(statement, 0);
        text = QString::fromUtf8(static_cast<const char *>(bytes), sqlite3_column_bytes(statement, 0));
    }
    sqlite3_finalize(statement);
    return text;
}

} // namespace KovaTest
