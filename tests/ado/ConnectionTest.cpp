#include "TestDatabase.h"
#include "Throwing.h"

#include "ado/connection/UntypedFields.h"

#include <QtCore/QDir>
#include <QtCore/QFile>

#include <sqlite3.h>
#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

using namespace Qt::Literals::StringLiterals;
using namespace ADODB;
using AdoTest::OtherProgram;
using AdoTest::TestDatabase;

namespace {

TEST(Connection, OpensAndClosesAFile)
{
    const TestDatabase database;
    Connection connection;
    connection.PutConnectionString(database.connectionString());
    EXPECT_EQ(connection.State(), adStateClosed);
    connection.Open({}, {}, {}, adConnectUnspecified);
    EXPECT_EQ(connection.State(), adStateOpen);
    EXPECT_ADO_ERROR(adErrObjectOpen, connection.Open());
    EXPECT_ADO_ERROR(adErrObjectOpen, connection.PutConnectionString(u"x=1"_s));
    connection.Close();
    EXPECT_EQ(connection.State(), adStateClosed);
    EXPECT_ADO_ERROR(adErrObjectClosed, connection.Close());
    connection.Open();
    EXPECT_EQ(connection.State(), adStateOpen);
}

TEST(Connection, FindsTheProviderByNameOrByFile)
{
    const TestDatabase database;
    for (const QString &text : {u"provider = sqlite ; DATA SOURCE='%1'"_s, u"Data Source=%1"_s}) {
        Connection connection;
        connection.Open(text.arg(database.path()));
        EXPECT_EQ(connection.State(), adStateOpen);
    }
    Connection memory;
    memory.Open(u"Provider=SQLite;Data Source=:memory:"_s);
    EXPECT_EQ(memory.State(), adStateOpen);
}

TEST(Connection, RefusesAnUnknownProvider)
{
    Connection connection;
    const Error error = AdoTest::errorOf([&] { connection.Open(u"Provider=Nonsense.1;Data Source=x"_s); });
    EXPECT_TRUE(error.is(adErrProviderNotFound));
    EXPECT_EQ(error.Number(), static_cast<qint32>(0x800A0E7A));
    EXPECT_TRUE(error.Description().contains(u"Nonsense.1")) << error.what();
    EXPECT_TRUE(error.Description().contains(u"SQLite")) << error.what();
    EXPECT_ADO_ERROR(adErrProviderNotFound, connection.Open(QString()));
    EXPECT_EQ(connection.State(), adStateClosed);
}

TEST(Connection, NamesAMissingFileAndMakesNone)
{
    const TestDatabase database;
    const QString path = database.filePath(u"没有.db"_s);
    Connection connection;
    const Error error = AdoTest::errorOf([&] { connection.Open(u"Provider=SQLite;Data Source="_s + path); });
    EXPECT_TRUE(error.is(adErrOpeningFile));
    EXPECT_TRUE(error.Description().contains(QDir::toNativeSeparators(path))) << error.what();
    EXPECT_FALSE(QFile::exists(path));
    EXPECT_EQ(connection.State(), adStateClosed);
}

#ifdef Q_OS_UNIX
// Nobody ever writes to the pipe, so opening it would block forever.
TEST(Connection, RefusesPipesAndDevicesAtOnce)
{
    const TestDatabase database;
    const QString pipe = database.filePath(u"pipe"_s);
    ASSERT_EQ(mkfifo(pipe.toUtf8().constData(), 0600), 0);
    for (const QString &text :
         {u"Provider=SQLite;Data Source="_s + pipe, u"Provider=SQLite;Data Source=/dev/zero"_s,
          u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source="_s + pipe, u"Driver=SQLite3;Database="_s + pipe,
          u"Driver=SQLite3;Database=/dev/zero"_s}) {
        Connection connection;
        const Error error = AdoTest::errorOf([&] { connection.Open(text); });
        EXPECT_TRUE(error.is(adErrOpeningFile)) << error.what();
        EXPECT_TRUE(error.Description().contains(u"管道或设备")) << error.what();
    }
}

TEST(Connection, RefusesAPipeThatSQLiteWouldReadBesideTheFile)
{
    for (const QLatin1StringView ending : {"-journal"_L1, "-wal"_L1, "-shm"_L1}) {
        SCOPED_TRACE(ending.data());
        const TestDatabase database(u"CREATE TABLE t(a)"_s);
        ASSERT_EQ(mkfifo((database.path() + ending).toUtf8().constData(), 0600), 0);
        Connection connection;
        const Error error = AdoTest::errorOf([&] { connection.Open(database.connectionString()); });
        EXPECT_TRUE(error.is(adErrOpeningFile)) << error.what();
        EXPECT_TRUE(error.Description().contains(u"管道或设备")) << error.what();
    }
}

TEST(Connection, ReadsNothingOfWhatOnlyLooksLikeAFile)
{
    Connection connection; // as root, reading this file waits for a kernel message
    EXPECT_THROW(connection.Open(u"Provider=SQLite;Data Source=/proc/kmsg"_s), Error);
}
#endif

TEST(Connection, RefusesWhatIsNoDatabaseAndLeavesItAlone)
{
    const TestDatabase database;
    const QString path = database.filePath(u"notes.db"_s);
    for (const QByteArray &content : {QByteArray(), QByteArray("some notes"), QByteArray(5000, 'x')}) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
        Connection connection;
        EXPECT_ADO_ERROR(adErrOpeningFile, connection.Open(u"Provider=SQLite;Data Source="_s + path));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        EXPECT_EQ(file.readAll(), content);
    }
    Connection connection;
    EXPECT_ADO_ERROR(adErrOpeningFile,
                     connection.Open(u"Provider=SQLite;Data Source="_s + database.filePath(QString())));
    EXPECT_ADO_ERROR(adErrInvalidArgument, connection.Open(u"Provider=SQLite"_s));
}

TEST(Connection, SaysThatAFileIsDamaged)
{
    const TestDatabase database(u"CREATE TABLE t(a);"_s);
    QByteArray bytes = database.fileBytes();
    bytes.replace(100, 900, QByteArray(900, '\x7f'));
    QFile file(database.path());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    file.close();
    Connection connection;
    EXPECT_ADO_ERROR(adErrOpeningFile, connection.Open(database.connectionString()));
    EXPECT_EQ(database.fileBytes(), bytes);
}

TEST(Connection, SaysThatAFileIsLocked)
{
    const TestDatabase database(u"CREATE TABLE t(a);"_s);
    const QByteArray before = database.fileBytes();
    const OtherProgram other(database, "BEGIN EXCLUSIVE");
    Connection connection;
    EXPECT_ADO_ERROR(adErrResourceLocked, connection.Open(database.connectionString()));
    EXPECT_EQ(connection.State(), adStateClosed);
    EXPECT_EQ(database.fileBytes(), before);
}

TEST(Connection, RefusesATimeLimitThatIsNoNumberOfSeconds)
{
    const TestDatabase database;
    Connection connection;
    for (const QString &seconds : {u"soon"_s, u"-1"_s, u"nan"_s}) {
        EXPECT_ADO_ERROR(adErrInvalidArgument, connection.Open(u"Connect Timeout=%1;Data Source=%2"_s.arg(
                                                   seconds, database.path())));
    }
}

TEST(Connection, NeverShowsAPassword)
{
    const TestDatabase database;
    const QString marker = u"marker-7x"_s;
    Connection connection;
    for (const QString &text :
         {u"Provider=Nope;Password=%1"_s, u"Provider=SQLite;Data Source=/nowhere;PWD=%1"_s,
          u"Provider=SQLite;Password=%1"_s, u"Provider=SQLite;Password=a;%1"_s}) {
        const Error error = AdoTest::errorOf([&] { connection.Open(text.arg(marker), u"me"_s, marker); });
        EXPECT_FALSE(error.Description().contains(marker)) << error.what();
    }
    connection.Open(database.connectionString() + u";Password="_s + marker);
    EXPECT_FALSE(connection.ConnectionString().contains(marker));
    EXPECT_TRUE(connection.ConnectionString().contains(database.path()));
}

TEST(Connection, DescribesAStatementWithoutReadingARow)
{
    const TestDatabase database(u"CREATE TABLE t(id INTEGER PRIMARY KEY, name VARCHAR(20) NOT NULL, x);"_s);
    const auto connection = database.connect();
    const auto fields = connection->Describe(u"SELECT id, name AS 名称, x, id * 2 AS twice FROM t"_s);
    ASSERT_EQ(fields.size(), 4U);
    EXPECT_EQ(fields[0].name, u"id"_s);
    EXPECT_EQ(fields[0].type, adInteger);
    EXPECT_NE(fields[0].attributes & adFldKeyColumn, 0);
    EXPECT_EQ(fields[1].name, u"名称"_s);
    EXPECT_EQ(fields[1].type, adVarWChar);
    EXPECT_EQ(fields[1].definedSize, 20);
    EXPECT_EQ(fields[1].baseTable, u"t"_s);
    EXPECT_EQ(fields[1].baseColumn, u"name"_s);
    EXPECT_EQ(fields[1].attributes & adFldIsNullable, 0);
    EXPECT_EQ(fields[2].type, adVarWChar);
    EXPECT_EQ(fields[3].baseColumn, QString());
    for (std::size_t i = 0; i < fields.size(); ++i)
        EXPECT_EQ(isUntyped(connection, fields[i]), i >= 2) << i;
    EXPECT_ADO_ERROR(dbErrMultipleStatements, connection->Describe(u"SELECT 1; SELECT 2"_s));
    connection->Close();
    EXPECT_ADO_ERROR(adErrObjectClosed, connection->Describe(u"SELECT 1"_s));
}

// Every word of SQLite's language, and names that need quotes for their characters.
TEST(Connection, WritesEachNameAsTheEngineReadsIt)
{
    QStringList names{u"plain"_s, u"Capital"_s, u"客户"_s, u"two words"_s, u"1a"_s,  u"a\"b"_s, u"a]b"_s,
                      u"a`b"_s,   u"it's"_s,    u"a.b"_s,  u"--"_s,        u"no#"_s, u"a;b"_s,  u"[a]"_s};
    const int words = sqlite3_keyword_count();
    EXPECT_GT(words, 100);
    for (int i = 0; i < words; ++i) {
        const char *word = nullptr;
        int length = 0;
        sqlite3_keyword_name(i, &word, &length);
        names += QString::fromLatin1(word, length).toLower();
    }
    const TestDatabase database(u"CREATE VIEW a_view AS SELECT 1; CREATE TABLE made(i INTEGER PRIMARY KEY "
                                "AUTOINCREMENT)"_s); // which makes sqlite_sequence, a table of the engine
    for (const QString &name : names) {
        const QString quoted = u'"' + QString(name).replace(u'"', u"\"\""_s) + u'"';
        database.execute(u"CREATE TABLE %1 (%1); INSERT INTO %1 VALUES (5)"_s.arg(quoted));
    }
    const auto connection = database.connect();
    QStringList tables;
    for (const Connection::Table &table : connection->Tables()) {
        EXPECT_EQ(table.isView, table.name == u"a_view"_s);
        EXPECT_EQ(table.schema, QString());
        tables += table.name;
        if (!names.contains(table.name))
            continue;
        Recordset records;
        records.Open(u"SELECT %1 FROM %1 WHERE %1 = 5"_s.arg(connection->WrittenName(table.name)),
                     connection);
        EXPECT_EQ(records.RecordCount(), 1) << table.name.toStdString();
        EXPECT_EQ(records.Fields().Item(0).Name(), table.name);
    }
    names += {u"a_view"_s, u"made"_s};
    names.sort();
    tables.sort();
    EXPECT_EQ(tables, names);
    connection->Close();
    EXPECT_ADO_ERROR(adErrObjectClosed, connection->WrittenName(u"a"_s));
    EXPECT_ADO_ERROR(adErrObjectClosed, connection->Tables());
}

} // namespace
