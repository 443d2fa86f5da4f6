// The memory that a large result needs in addition to the recordset's own copy.
#include "OdbcEngines.h"

#include <QtCore/QFile>

#ifdef __GLIBC__
#include <malloc.h>
#endif

using namespace Qt::Literals::StringLiterals;
using namespace ADODB;

namespace {

constexpr qint64 miB = qint64{1} << 20;
constexpr int manyRecords = 300'000;

// Memory of this process in MiB; 0 if unknown. `what` is VmRSS for the current value, VmHWM for the peak.
qint64 memory(const char *what)
{
    QFile file(u"/proc/self/status"_s);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : file.readAll().split('\n')) {
        if (line.startsWith(what))
            return line.simplified().split(' ').value(1).toLongLong() / 1024;
    }
    return 0;
}

// Freed memory that the allocator keeps would be measured too.
void giveBackFreed()
{
#ifdef __GLIBC__
    malloc_trim(0);
#endif
}

bool forgetMost()
{
    QFile file(u"/proc/self/clear_refs"_s);
    return file.open(QIODevice::WriteOnly) && file.write("5") == 1;
}

class OdbcMemory : public AdoTest::OnOdbc
{
protected:
    void SetUp() override
    {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
        GTEST_SKIP() << "the sanitizer takes memory of its own";
#endif
        OnOdbc::SetUp();
        if (IsSkipped() || HasFatalFailure())
            return;
        if (!forgetMost())
            GTEST_SKIP() << "the system does not tell";
        const QString numbers = is("PostgreSQL") ? u"SELECT g AS i FROM generate_series(1, %1) g"_s
                                : is("MariaDB")
                                    ? u"SELECT seq AS i FROM seq_1_to_%1"_s
                                    : u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n"
                                      " WHERE i < %1) SELECT i FROM n"_s;
        execute(u"CREATE TABLE kova_a(id INTEGER PRIMARY KEY, t VARCHAR(200))"_s);
        execute(u"INSERT INTO kova_a SELECT i, '%1' FROM (%2) AS numbers"_s.arg(QString(150, u't'),
                                                                                numbers.arg(manyRecords)));
    }
};

KOVA_ON_ODBC_ENGINES(OdbcMemory);

TEST_P(OdbcMemory, IsNotTakenByTheDriverForAWholeResult)
{
    open(u"SELECT * FROM kova_a WHERE id < 10"_s); // what libraries keep once and for all
    ASSERT_TRUE(forgetMost());
    const qint64 before = memory("VmRSS");
    Recordset recordset;
    recordset.PutMemoryLimit(4 * miB); // the rest goes to the disk
    recordset.Open(u"SELECT * FROM kova_a"_s, connect());
    EXPECT_EQ(recordset.RecordCount(), manyRecords);
    giveBackFreed();
    // The texts alone are 43 miB, and more as drivers keep them. MariaDB's keeps them until they are read.
    EXPECT_LT(memory(is("MariaDB") ? "VmRSS" : "VmHWM"), before + 30);
}

} // namespace
