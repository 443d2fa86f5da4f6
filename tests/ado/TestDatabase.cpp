#include "TestDatabase.h"

#include "Printing.h"

#include <QtCore/QFile>
#include <QtCore/QStringList>
#include <gtest/gtest.h>
#include <sqlite3.h>

using namespace Qt::Literals::StringLiterals;

namespace AdoTest {

namespace {

sqlite3 *openFile(const QString &path)
{
    sqlite3 *db = nullptr;
    EXPECT_EQ(sqlite3_open(path.toUtf8().constData(), &db), SQLITE_OK);
    return db;
}

void run(sqlite3 *db, const QByteArray &script)
{
    EXPECT_EQ(sqlite3_exec(db, script.constData(), nullptr, nullptr, nullptr), SQLITE_OK)
        << sqlite3_errmsg(db) << " in " << script.constData();
}

// Until `see` returns false.
template<typename See>
void forEachRow(const QString &path, const QString &sql, See &&see)
{
    sqlite3 *db = openFile(path);
    sqlite3_stmt *statement = nullptr;
    EXPECT_EQ(sqlite3_prepare_v2(db, sql.toUtf8().constData(), -1, &statement, nullptr), SQLITE_OK)
        << sqlite3_errmsg(db) << " in " << sql.toStdString();
    while (sqlite3_step(statement) == SQLITE_ROW && see(statement)) {
    }
    sqlite3_finalize(statement);
    sqlite3_close(db);
}

} // namespace

TestDatabase::TestDatabase(const QString &script) : m_path(m_folder.filePath(u"测试.db"_s))
{
    execute(u"PRAGMA user_version = 1;"_s + script);
}

QString TestDatabase::connectionString() const
{
    return u"Provider=SQLite;Connect Timeout=0;Data Source="_s + m_path;
}

void TestDatabase::execute(const QString &script) const
{
    sqlite3 *db = openFile(m_path);
    // A test's file need not survive a power cut.
    run(db, "PRAGMA synchronous = OFF;" + script.toUtf8());
    sqlite3_close(db);
}

QString TestDatabase::ask(const QString &sql) const
{
    QString answer = u"none"_s;
    forEachRow(m_path, sql, [&](sqlite3_stmt *statement) {
        const void *text = sqlite3_column_text(statement, 0);
        answer = text ? QString::fromUtf8(static_cast<const char *>(text)) : u"NULL"_s;
        return false;
    });
    return answer;
}

QList<QStringList> TestDatabase::rows(const QString &sql) const
{
    QList<QStringList> rows;
    forEachRow(m_path, sql, [&](sqlite3_stmt *statement) {
        QStringList cells;
        for (int i = 0; i < sqlite3_column_count(statement); ++i) {
            // Told apart by their types: 1, '1' and 1.0 are different values.
            const void *text = sqlite3_column_text(statement, i);
            cells += QString::number(sqlite3_column_type(statement, i)) + u':' +
                     QString::fromUtf8(static_cast<const char *>(text));
        }
        rows += cells;
        return true;
    });
    return rows;
}

QByteArray TestDatabase::fileBytes() const
{
    QFile file(m_path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

std::shared_ptr<ADODB::Connection> TestDatabase::connect() const
{
    auto connection = std::make_shared<ADODB::Connection>();
    connection->Open(connectionString());
    return connection;
}

std::shared_ptr<ADODB::Recordset> TestDatabase::open(const QString &sql, ADODB::LockTypeEnum lock) const
{
    auto recordset = std::make_shared<ADODB::Recordset>();
    recordset->Open(sql, connect(), ADODB::adOpenKeyset, lock, ADODB::adCmdText);
    // Only the recordset keeps the connection alive, as when a host has released it.
    return recordset;
}

OtherProgram::OtherProgram(const TestDatabase &database, const char *lock) : m_db(openFile(database.path()))
{
    run(m_db, lock);
}

OtherProgram::~OtherProgram()
{
    sqlite3_close(m_db);
}

QString cellTexts(const ADODB::Recordset &recordset)
{
    QStringList records;
    for (qint64 record = 1; record <= recordset.RecordCount(); ++record) {
        QStringList cells;
        for (int column = 0; column < recordset.Fields().Count(); ++column)
            cells += recordset.CellText(record, column);
        records += cells.join(u'|');
    }
    return records.join(u'\n');
}

} // namespace AdoTest
