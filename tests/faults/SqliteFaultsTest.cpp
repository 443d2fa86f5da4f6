// Each memory allocation and each disk access fails in turn during reading and writing. What is read must be
// complete or an error; a write must have the reported outcome.
#include "FaultyDisk.h"
#include "FaultyMemory.h"

#include "ado/Connection.h"
#include "ado/Error.h"
#include "ado/Recordset.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <functional>
#include <optional>

using namespace Qt::StringLiterals;
using namespace ADODB;
using namespace KovaTest;

namespace {

class Installed : public testing::Environment
{
    void SetUp() override
    {
        FaultyMemory::install();
        FaultyDisk::install();
    }
};
const auto *const installed = testing::AddGlobalTestEnvironment(new Installed);

struct Fault
{
    const char *name;
    std::function<void(int)> failAt;
    std::function<void()> stop;
    std::function<bool()> hasFailed;
};

std::vector<Fault> faults()
{
    std::vector<Fault> all;
    for (const bool stays : {false, true}) {
        all.push_back({stays ? "no memory any more" : "one request for memory",
                       [stays](int n) { FaultyMemory::failAt(n, stays); }, FaultyMemory::stopFailing,
                       FaultyMemory::hasFailed});
        for (const auto fault : {FaultyDisk::Fault::Error, FaultyDisk::Fault::Full})
            all.push_back({stays ? "a broken disk" : "one call on the disk",
                           [stays, fault](int n) { FaultyDisk::failAt(n, fault, stays); },
                           FaultyDisk::stopFailing, FaultyDisk::hasFailed});
    }
    return all;
}

class SqliteFaults : public testing::Test
{
protected:
    void SetUp() override
    {
        sqlite3 *db = nullptr;
        ASSERT_EQ(sqlite3_open(m_template.toUtf8().constData(), &db), SQLITE_OK);
        ASSERT_EQ(
            sqlite3_exec(db,
                         "CREATE TABLE t(a TEXT PRIMARY KEY, b, c TEXT);"
                         "CREATE INDEX i ON t(b);"
                         "INSERT INTO t WITH RECURSIVE n(x) AS (SELECT 1 UNION ALL SELECT x + 1 FROM n WHERE "
                         "x < 60) SELECT 'k' || x, x, printf('%.*c', 300, 'x') FROM n;"
                         "CREATE TABLE log(a); CREATE TRIGGER g AFTER UPDATE ON t BEGIN INSERT INTO log "
                         "VALUES (new.a); END;",
                         nullptr, nullptr, nullptr),
            SQLITE_OK);
        sqlite3_close(db);
    }
    void reset() const
    {
        QFile::remove(path);
        QFile::remove(path + u"-journal"_s);
        ASSERT_TRUE(QFile::copy(m_template, path));
    }
    // All contents of the file, as another program sees them.
    QByteArray dump() const
    {
        sqlite3 *db = nullptr;
        sqlite3_open(path.toUtf8().constData(), &db);
        sqlite3_stmt *statement = nullptr;
        sqlite3_prepare_v2(db,
                           "SELECT (SELECT group_concat(quote(a) || quote(b) || quote(c)) FROM (SELECT * "
                           "FROM t ORDER BY a)) || '/' || "
                           "(SELECT count(*) FROM log) || (SELECT * FROM pragma_integrity_check)",
                           -1, &statement, nullptr);
        QByteArray text;
        if (sqlite3_step(statement) == SQLITE_ROW)
            text = reinterpret_cast<const char *>(sqlite3_column_text(statement, 0));
        sqlite3_finalize(statement);
        sqlite3_close(db);
        return text;
    }
    struct Opened
    {
        std::shared_ptr<Connection> connection = std::make_shared<Connection>();
        std::shared_ptr<Recordset> recordset = std::make_shared<Recordset>();
    };
    void open(const Opened &to) const
    {
        to.connection->Open(m_connection);
        to.recordset->Open(m_statement, to.connection, adOpenKeyset, adLockOptimistic);
    }
    std::shared_ptr<Recordset> open() const
    {
        const Opened opened;
        open(opened);
        return opened.recordset;
    }
    static QString textOf(const Recordset &recordset)
    {
        QString text;
        for (qint64 i = 1; i <= recordset.RecordCount(); ++i)
            text += recordset.CellText(i, 0) + recordset.CellText(i, 1);
        return text;
    }

    // Fails each call of `action` in turn until it has none left; the number of faults.
    int expectBeforeOrAfter(const std::function<void(Recordset &)> &action)
    {
        reset();
        const QByteArray before = dump();
        action(*open());
        const QByteArray after = dump();
        EXPECT_NE(before, after);
        EXPECT_TRUE(after.endsWith("ok"));
        int count = 0;
        for (const Fault &fault : faults()) {
            for (int n = 1; n < 100'000 && !HasFailure(); ++n) {
                SCOPED_TRACE(testing::Message() << fault.name << ", call " << n);
                reset();
                auto recordset = open();
                std::optional<Error> error;
                fault.failAt(n);
                try {
                    action(*recordset);
                } catch (const Error &thrown) {
                    error = thrown;
                } catch (const std::bad_alloc &) {
                    fault.stop();
                    ADD_FAILURE() << "not told as an error of the data access";
                }
                fault.stop();
                recordset.reset();
                const QByteArray now = dump();
                const bool mayBeBefore = error.has_value();
                const bool mayBeAfter = !error || error->is(dbErrInDoubt);
                EXPECT_TRUE((mayBeBefore && now == before) || (mayBeAfter && now == after))
                    << (error ? error->what() : "saved") << ": " << (now == after) << (now == before);
                EXPECT_TRUE(!error || !error->Description().isEmpty());
                if (!fault.hasFailed())
                    break;
                ++count;
            }
        }
        RecordProperty("faults", count);
        return count;
    }

    QTemporaryDir m_folder;
    const QString m_template = m_folder.filePath(u"template.db"_s);
    const QString path = m_folder.filePath(u"t.db"_s);
    const QString m_connection = u"Provider=SQLite;Connect Timeout=0;Data Source="_s + path;
    const QString m_statement = u"SELECT a, b FROM t ORDER BY b"_s;
};

TEST_F(SqliteFaults, AnUpdateIsSavedOrNot)
{
    EXPECT_GT(expectBeforeOrAfter([](Recordset &recordset) {
                  recordset.Fields().Item(1).PutValue(1000);
                  recordset.Update();
              }),
              300);
}

TEST_F(SqliteFaults, ADeletionIsSavedOrNot)
{
    EXPECT_GT(expectBeforeOrAfter([](Recordset &recordset) { recordset.Delete(); }), 300);
}

TEST_F(SqliteFaults, ANewRecordIsSavedOrNot)
{
    EXPECT_GT(expectBeforeOrAfter([](Recordset &recordset) {
                  recordset.AddNew();
                  recordset.Fields().Item(0).PutValue(u"new"_s);
                  recordset.Update();
              }),
              300);
}

TEST_F(SqliteFaults, AResultIsWholeOrAnError)
{
    reset();
    const QString whole = textOf(*open());
    const QByteArray before = dump();
    for (const Fault &fault : faults()) {
        for (int n = 1; n < 100'000 && !HasFailure(); ++n) {
            SCOPED_TRACE(testing::Message() << fault.name << ", call " << n);
            QString read = whole;
            const Opened opened;
            fault.failAt(n);
            try {
                open(opened);
                fault.stop();
                read = textOf(*opened.recordset);
            } catch (const Error &error) {
                fault.stop();
                EXPECT_FALSE(error.Description().isEmpty());
            }
            EXPECT_EQ(read, whole);
            if (!fault.hasFailed())
                break;
        }
    }
    EXPECT_EQ(dump(), before);
}

// What a failed write leaves of the connection still works.
TEST_F(SqliteFaults, LeaveAConnectionThatStillWorks)
{
    reset();
    const auto recordset = open();
    for (const Fault &fault : faults()) {
        for (int n = 1; n < 200 && !HasFailure(); n += 3) {
            SCOPED_TRACE(testing::Message() << fault.name << ", call " << n);
            fault.failAt(n);
            try {
                recordset->Fields().Item(1).PutValue(n);
                recordset->Update();
            } catch (const std::exception &) {
                fault.stop();
                recordset->CancelUpdate();
            }
            fault.stop();
            recordset->Resync();
            recordset->Fields().Item(1).PutValue(-n);
            EXPECT_NO_THROW(recordset->Update());
        }
    }
}

} // namespace
