#include "TemporaryFolder.h"
#include "TestDatabase.h"
#include "Throwing.h"

#include "ado/recordset/RecordsSoFar.h"

using namespace Qt::Literals::StringLiterals;
using namespace ADODB;
using AdoTest::TestDatabase;

namespace {

const QString numbers = u"CREATE TABLE n(i INTEGER PRIMARY KEY, name TEXT, Name2 TEXT);"
                        "WITH RECURSIVE s(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM s WHERE i < 25)"
                        "INSERT INTO n SELECT i, 'no ' || i, NULL FROM s;"_s;

TEST(Recordset, WalksFromTheFirstToTheLastRecord)
{
    const TestDatabase database(numbers);
    const auto recordset = database.open(u"SELECT * FROM n ORDER BY i"_s);
    int sum = 0;
    int records = 0;
    for (recordset->MoveFirst(); !recordset->isEOF(); recordset->MoveNext()) {
        sum += recordset->Fields().Item(u"I"_s).Value().toInt();
        ++records;
    }
    EXPECT_EQ(records, 25);
    EXPECT_EQ(sum, 325);
    EXPECT_ADO_ERROR(adErrNoCurrentRecord, recordset->Fields().Item(0).Value());
    EXPECT_ADO_ERROR(adErrNoCurrentRecord, recordset->MoveNext());
    recordset->MoveLast();
    EXPECT_EQ(recordset->Fields().Item(0).Value(), QVariant(25));
    recordset->Move(-100);
    EXPECT_TRUE(recordset->isBOF());
    EXPECT_EQ(recordset->AbsolutePosition(), adPosBOF);
    recordset->Move(2, adBookmarkLast);
    EXPECT_EQ(recordset->AbsolutePosition(), adPosEOF);
    recordset->Move(-1, adBookmarkLast);
    EXPECT_EQ(recordset->AbsolutePosition(), 24);
}

TEST(Recordset, FindsFieldsByNameAndNumber)
{
    const TestDatabase database(numbers);
    const auto recordset = database.open(u"SELECT i, name, Name2, i AS NAME FROM n"_s);
    auto &fields = recordset->Fields();
    EXPECT_EQ(fields.Count(), 4);
    EXPECT_EQ(fields.Item(u"name2"_s).Index(), 2);
    EXPECT_EQ(fields.Item(u"NAME"_s).Index(), 1) << "the first of two equal names";
    EXPECT_EQ(fields.Item(0).Name(), u"i"_s);
    EXPECT_EQ(fields.IndexOf(u"nothing"_s), -1);
    EXPECT_ADO_ERROR(adErrItemNotFound, fields.Item(u"nothing"_s));
    EXPECT_ADO_ERROR(adErrItemNotFound, fields.Item(4));
    EXPECT_ADO_ERROR(adErrItemNotFound, fields.Item(-1));
}

TEST(Recordset, CountsPages)
{
    const TestDatabase database(numbers);
    const auto recordset = database.open(u"SELECT * FROM n"_s);
    EXPECT_EQ(recordset->PageSize(), 10);
    EXPECT_EQ(recordset->PageCount(), 3);
    recordset->PutAbsolutePage(3);
    EXPECT_EQ(recordset->AbsolutePosition(), 21);
    EXPECT_EQ(recordset->AbsolutePage(), 3);
    recordset->PutAbsolutePosition(20);
    EXPECT_EQ(recordset->AbsolutePage(), 2);
    recordset->PutPageSize(999999);
    EXPECT_EQ(recordset->PageCount(), 1);
    EXPECT_EQ(recordset->AbsolutePage(), 1);
    recordset->PutPageSize(25);
    EXPECT_EQ(recordset->PageCount(), 1);
    recordset->PutPageSize(24);
    EXPECT_EQ(recordset->PageCount(), 2);
    for (const qint64 bad : {0, -1, 3})
        EXPECT_ADO_ERROR(adErrInvalidArgument, recordset->PutAbsolutePage(bad));
    for (const qint64 bad : {0, -2, 26})
        EXPECT_ADO_ERROR(adErrInvalidArgument, recordset->PutAbsolutePosition(bad));
    EXPECT_ADO_ERROR(adErrInvalidArgument, recordset->PutPageSize(0));
    EXPECT_EQ(recordset->AbsolutePosition(), 20) << "refused moves stay";
    recordset->MoveLast();
    recordset->MoveNext();
    EXPECT_EQ(recordset->AbsolutePage(), adPosEOF);
}

TEST(Recordset, PagesCountLiveRecords)
{
    const TestDatabase database(numbers);
    const auto recordset = database.open(u"SELECT * FROM n ORDER BY i"_s);
    for (const qint64 position : {1, 1, 5}) {
        recordset->PutAbsolutePosition(position);
        recordset->Delete();
    }
    EXPECT_EQ(recordset->RecordCount(), 22);
    recordset->PutAbsolutePage(2);
    // 1, 2 and 7 are gone, so the eleventh of the rest is 14.
    EXPECT_EQ(recordset->Fields().Item(0).Value(), QVariant(14));
    EXPECT_EQ(recordset->CellText(11, 0), u"14"_s);
}

TEST(Recordset, WithoutRecordsIsAtBothEnds)
{
    const TestDatabase database(numbers);
    const auto recordset = database.open(u"SELECT * FROM n WHERE i < 0"_s);
    EXPECT_EQ(recordset->RecordCount(), 0);
    EXPECT_TRUE(recordset->isBOF());
    EXPECT_TRUE(recordset->isEOF());
    EXPECT_EQ(recordset->PageCount(), 0);
    EXPECT_EQ(recordset->AbsolutePosition(), adPosUnknown);
    EXPECT_EQ(recordset->Fields().Count(), 3);
    EXPECT_EQ(recordset->Fields().Item(1).Name(), u"name"_s);
    EXPECT_ADO_ERROR(adErrNoCurrentRecord, recordset->MoveFirst());
    EXPECT_ADO_ERROR(adErrNoCurrentRecord, recordset->PutAbsolutePage(1));
    EXPECT_ADO_ERROR(adErrNoCurrentRecord, recordset->PutAbsolutePosition(1));
    EXPECT_ADO_ERROR(adErrNoCurrentRecord, recordset->Delete());
    EXPECT_ADO_ERROR(adErrNoCurrentRecord, recordset->Fields().Item(0).PutValue(1));
}

TEST(Recordset, AnswersForCellsOutsideItself)
{
    const TestDatabase database(numbers);
    const auto recordset = database.open(u"SELECT * FROM n"_s);
    for (const auto &[record, column] : {std::pair<qint64, int>{0, 0}, {26, 0}, {1, 3}, {1, -1}, {-5, 0}}) {
        EXPECT_EQ(recordset->CellText(record, column), QString());
        EXPECT_FALSE(recordset->CellValue(record, column).isValid());
        EXPECT_TRUE(recordset->IsNull(record, column));
    }
    recordset->Close();
    EXPECT_EQ(recordset->CellText(1, 0), QString());
    EXPECT_TRUE(recordset->IsNull(1, 0));
}

TEST(Recordset, DoesNotShowTheKeyItHides)
{
    const TestDatabase database(numbers);
    const auto recordset = database.open(u"SELECT name FROM n"_s);
    EXPECT_EQ(recordset->Fields().Count(), 1);
    EXPECT_EQ(recordset->CellText(1, 1), QString());
}

TEST(Recordset, RefusesWorkWhileClosed)
{
    Recordset recordset;
    EXPECT_EQ(recordset.State(), adStateClosed);
    EXPECT_EQ(recordset.Fields().Count(), 0);
    EXPECT_ADO_ERROR(adErrObjectClosed, recordset.Close());
    EXPECT_ADO_ERROR(adErrObjectClosed, recordset.RecordCount());
    EXPECT_ADO_ERROR(adErrObjectClosed, recordset.isBOF());
    EXPECT_ADO_ERROR(adErrObjectClosed, recordset.isEOF());
    EXPECT_ADO_ERROR(adErrObjectClosed, recordset.MoveNext());
    EXPECT_ADO_ERROR(adErrObjectClosed, recordset.PageCount());
    EXPECT_ADO_ERROR(adErrObjectClosed, recordset.AbsolutePage());
    EXPECT_ADO_ERROR(adErrObjectClosed, recordset.PutAbsolutePosition(1));
    EXPECT_ADO_ERROR(adErrObjectClosed, recordset.AddNew());
    EXPECT_ADO_ERROR(adErrObjectClosed, recordset.Update());
    EXPECT_ADO_ERROR(adErrObjectClosed, recordset.CancelUpdate());
    EXPECT_ADO_ERROR(adErrObjectClosed, recordset.Delete());
    EXPECT_ADO_ERROR(adErrObjectClosed, recordset.EditMode());
}

TEST(Recordset, SaysHowItWasOpened)
{
    const TestDatabase database(numbers);
    Recordset recordset;
    recordset.PutCursorLocation(adUseServer);
    recordset.Open(u"SELECT 1"_s, database.connect(), adOpenKeyset, adLockOptimistic, adCmdText);
    EXPECT_EQ(recordset.CursorLocation(), adUseClient);
    EXPECT_EQ(recordset.CursorType(), adOpenStatic);
    EXPECT_EQ(recordset.LockType(), adLockOptimistic);
    EXPECT_EQ(recordset.Source(), u"SELECT 1"_s);
    EXPECT_ADO_ERROR(adErrObjectOpen, recordset.PutCursorLocation(adUseClient));
    EXPECT_ADO_ERROR(adErrObjectOpen, recordset.PutLockType(adLockReadOnly));
    EXPECT_ADO_ERROR(adErrObjectOpen, recordset.PutCursorType(adOpenStatic));
    recordset.Close();
    EXPECT_ADO_ERROR(adErrInvalidArgument, recordset.PutCursorLocation(static_cast<CursorLocationEnum>(1)));
    EXPECT_ADO_ERROR(adErrInvalidArgument, recordset.PutLockType(static_cast<LockTypeEnum>(9)));
    EXPECT_ADO_ERROR(adErrInvalidArgument, recordset.PutCursorType(static_cast<CursorTypeEnum>(9)));
    recordset.Open(u"SELECT 1, 2"_s, database.connect());
    EXPECT_EQ(recordset.Fields().Count(), 2) << "a closed one can be opened again";
}

TEST(Recordset, OpensWritableOnlyWhenTheOpeningOrThePropertySaysSo)
{
    const TestDatabase database(numbers);
    const auto connection = database.connect();
    Recordset recordset;
    recordset.Open(u"SELECT * FROM n"_s, connection, adOpenKeyset, adLockOptimistic);
    recordset.Close();
    EXPECT_EQ(recordset.LockType(), adLockReadOnly);
    recordset.Open(u"SELECT * FROM n"_s, connection);
    EXPECT_EQ(recordset.LockType(), adLockReadOnly) << "what the opening before said is over";
    EXPECT_ADO_ERROR(adErrFeatureNotAvailable, recordset.Delete());
    recordset.Close();

    recordset.PutLockType(adLockOptimistic);
    EXPECT_ADO_ERROR(adErrInvalidArgument,
                     recordset.Open(u"SELECT * FROM n"_s, connection, static_cast<CursorTypeEnum>(9)));
    EXPECT_ADO_ERROR(adErrInvalidArgument, recordset.Open(u"SELECT * FROM n"_s, connection, adOpenStatic,
                                                          static_cast<LockTypeEnum>(9)));
    recordset.Open(u"SELECT * FROM n"_s, connection, adOpenStatic, adLockReadOnly);
    EXPECT_EQ(recordset.LockType(), adLockReadOnly);
    EXPECT_ADO_ERROR(adErrFeatureNotAvailable, recordset.Delete());
    recordset.Close();
    EXPECT_EQ(recordset.LockType(), adLockOptimistic);
    recordset.Open(u"SELECT * FROM n"_s, connection);
    recordset.Delete();
    EXPECT_EQ(database.ask(u"SELECT count(*) FROM n"_s), u"24"_s);
}

TEST(Recordset, StaysReadableWhenItsConnectionCloses)
{
    const TestDatabase database(numbers);
    const auto connection = database.connect();
    Recordset recordset;
    recordset.Open(u"SELECT * FROM n"_s, connection, adOpenKeyset, adLockOptimistic);
    connection->Close();
    recordset.MoveLast();
    EXPECT_EQ(recordset.Fields().Item(1).Value(), QVariant(u"no 25"_s));
    EXPECT_ADO_ERROR(adErrInvalidConnection, recordset.Delete());
    EXPECT_EQ(recordset.RecordCount(), 25);
    EXPECT_EQ(database.ask(u"SELECT count(*) FROM n"_s), u"25"_s);
}

TEST(Recordset, TakesATableWithManyColumns)
{
    QStringList columns;
    for (int i = 0; i < 1600; ++i)
        columns += u"c%1 INTEGER DEFAULT %1"_s.arg(i);
    const TestDatabase database(
        u"CREATE TABLE wide(%1); INSERT INTO wide DEFAULT VALUES;"_s.arg(columns.join(u',')));
    const auto recordset = database.open(u"SELECT * FROM wide"_s);
    EXPECT_EQ(recordset->Fields().Count(), 1600);
    EXPECT_EQ(recordset->Fields().Item(u"C1599"_s).Value(), QVariant(1599));
}

// More than a memory limit of none, which leaves one block.
struct BigResult : testing::Test
{
    static constexpr int count = 200'000;

    BigResult()
        : database(u"CREATE TABLE big(i INTEGER PRIMARY KEY, name TEXT);"
                   "WITH RECURSIVE s(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM s WHERE i < %1)"
                   "INSERT INTO big SELECT i, substr(hex(zeroblob(50)) || (i * 7), -100) FROM s"_s.arg(count))
    {
        recordset.PutMemoryLimit(0);
    }

    static QString name(int i) { return QString::number(i * 7).rightJustified(100, u'0'); }
    void open()
    {
        recordset.Open(u"SELECT * FROM big ORDER BY i"_s, database.connect(), adOpenKeyset, adLockOptimistic);
    }

    const TestDatabase database;
    AdoTest::TemporaryFolder folder;
    Recordset recordset;
};

TEST_F(BigResult, IsReadAndEditedAlikeAndLeavesNoFile)
{
    open();
    ASSERT_EQ(recordset.RecordCount(), count);
    for (int i = 1; i <= count; ++i)
        ASSERT_EQ(recordset.CellText(i, 1), name(i)) << i;

    recordset.PutAbsolutePosition(3);
    recordset.Delete();
    recordset.PutAbsolutePosition(99'999);
    recordset.Fields().Item(1).PutValue(u"changed"_s);
    recordset.Update();
    recordset.AddNew();
    recordset.Fields().Item(1).PutValue(u"added"_s);
    recordset.Update();
    EXPECT_EQ(recordset.CellText(3, 1), name(4));
    EXPECT_EQ(recordset.CellText(99'999, 1), u"changed"_s);
    EXPECT_EQ(recordset.CellText(count, 1), u"added"_s);
    EXPECT_EQ(database.ask(u"SELECT name FROM big WHERE i = 100000"_s), u"changed"_s);

    EXPECT_ADO_ERROR(adErrObjectOpen, recordset.PutMemoryLimit(1));
    recordset.Close();
    EXPECT_EQ(folder.names(), QStringList());
}

TEST_F(BigResult, ThatTheDiskDoesNotTakeIsAFailedOpen)
{
    folder.makeUnusable();
    EXPECT_ADO_ERROR(dbErrFailed, open());
    EXPECT_EQ(recordset.State(), adStateClosed);
    recordset.PutMemoryLimit(qint64{1} << 30);
    open();
    EXPECT_EQ(recordset.RecordCount(), count);
    EXPECT_ADO_ERROR(adErrObjectOpen, recordset.PutMemoryLimit(0));
}

TEST(Recordset, ShowsWhatHasBeenReadWhileItIsOpened)
{
    const TestDatabase database(numbers);
    const auto connection = database.connect();
    Recordset recordset;
    EXPECT_EQ(recordsSoFar(recordset), nullptr);
    std::vector<std::shared_ptr<const Recordset>> seen;
    recordset.SetProgress([&](qint64 rowsRead) {
        if (const auto soFar = recordsSoFar(recordset)) {
            EXPECT_EQ(soFar->RecordCount(), rowsRead);
            EXPECT_EQ(recordset.State(), adStateClosed);
            seen.push_back(soFar);
        }
        return seen.size() < 3;
    });
    EXPECT_ADO_ERROR(dbErrCancelled,
                     recordset.Open(u"WITH RECURSIVE s(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM s)"
                                    "SELECT i AS n, 'no ' || i AS name FROM s"_s,
                                    connection));
    EXPECT_EQ(recordsSoFar(recordset), nullptr);
    ASSERT_EQ(seen.size(), 3U);
    EXPECT_LT(seen[0]->RecordCount(), seen[2]->RecordCount());
    for (const auto &soFar : seen) {
        const qint64 last = soFar->RecordCount();
        EXPECT_EQ(soFar->State(), adStateOpen);
        EXPECT_EQ(soFar->CellText(1, 1), u"no 1"_s);
        EXPECT_EQ(soFar->CellText(last, 0), QString::number(last));
        EXPECT_EQ(soFar->CellText(last, 1), u"no %1"_s.arg(last));
        EXPECT_EQ(soFar->CellText(last + 1, 1), QString());
        EXPECT_EQ(soFar->Fields().Item(1).Name(), u"name"_s);
        EXPECT_EQ(soFar->EditMode(), adEditNone);
    }
}

} // namespace

#if defined(__x86_64__) && defined(__GNUC__)
// Their upper halves, which slow other instructions down as long as they are in use.
TEST(Recordset, ReadsOnWithEmptyVectorRegistersWhateverTheCallbackLeftInThem)
{
    if (!__builtin_cpu_supports("avx"))
        GTEST_SKIP() << "a processor without AVX has no upper halves";
    Recordset recordset;
    int calls = 0;
    std::array<quint64, 2> found{};
    recordset.SetProgress([&](qint64) {
        if (++calls == 5)
            __asm__ volatile("vextractf128 $1, %%ymm15, %0" : "=m"(found));
        __asm__ volatile("vpcmpeqd %%xmm15, %%xmm15, %%xmm15\n\t"
                         "vinsertf128 $1, %%xmm15, %%ymm15, %%ymm15" ::
                             : "xmm15");
        return calls < 5;
    });
    EXPECT_ADO_ERROR(dbErrCancelled,
                     recordset.Open(u"WITH RECURSIVE s(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM s)"
                                    "SELECT i / 7.0 FROM s"_s,
                                    TestDatabase(numbers).connect()));
    EXPECT_EQ(calls, 5);
    EXPECT_EQ(found, (std::array<quint64, 2>{}));
}
#endif
