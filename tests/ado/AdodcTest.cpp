#include "TestDatabase.h"
#include "Throwing.h"

#include "ado/Adodc.h"

#include <QtCore/QSignalBlocker>

#include <utility>

using namespace Qt::Literals::StringLiterals;
using namespace ADODB;
using AdoTest::TestDatabase;

namespace {

class AdodcTest : public testing::Test
{
protected:
    AdodcTest()
    {
        QObject::connect(&adodc, &Adodc::MoveComplete, &adodc,
                         [this](EventReasonEnum reason) { log += u"m%1 "_s.arg(reason); });
        QObject::connect(&adodc, &Adodc::RecordChangeComplete, &adodc,
                         [this](EventReasonEnum reason) { log += u"r%1 "_s.arg(reason); });
        QObject::connect(&adodc, &Adodc::RecordsetChangeComplete, &adodc,
                         [this](EventReasonEnum reason) { log += u"s%1 "_s.arg(reason); });
    }

    QString take() { return std::exchange(log, QString()).trimmed(); }

    TestDatabase database{u"CREATE TABLE t(id INTEGER PRIMARY KEY, a TEXT);"
                          "INSERT INTO t VALUES (1, 'a'), (2, 'b'), (3, 'c');"_s};
    Adodc adodc;
    QString log; // m for moves, r for a record's changes, s for the set's, each with its reason
};

TEST_F(AdodcTest, ReportsMovesWithTheirReasons)
{
    const auto recordset = database.open(u"SELECT * FROM t"_s);
    adodc.PutRecordset(recordset);
    EXPECT_EQ(take(), u"s7 m10"_s);
    EXPECT_EQ(adodc.Recordset(), recordset);
    recordset->MoveNext();
    recordset->MovePrevious();
    recordset->MoveLast();
    recordset->MoveFirst();
    recordset->Move(2);
    recordset->PutAbsolutePosition(1);
    recordset->PutAbsolutePage(1);
    EXPECT_EQ(take(), u"m13 m14 m15 m12 m10 m10 m10"_s);
    recordset->MovePrevious();
    EXPECT_EQ(take(), u"m14"_s);
    EXPECT_ADO_ERROR(adErrNoCurrentRecord, recordset->MovePrevious());
    EXPECT_EQ(take(), QString()) << "a move that failed is no move";
}

TEST_F(AdodcTest, ReportsChanges)
{
    const auto recordset = database.open(u"SELECT * FROM t"_s);
    adodc.PutRecordset(recordset);
    take();
    recordset->Fields().Item(1).PutValue(u"x"_s);
    recordset->Fields().Item(1).PutValue(u"y"_s);
    recordset->Update();
    EXPECT_EQ(take(), u"r11 r3"_s);
    recordset->AddNew();
    recordset->CancelUpdate();
    EXPECT_EQ(take(), u"r1 m10 r5 m10"_s);
    recordset->Fields().Item(1).PutValue(u"z"_s);
    recordset->CancelUpdate();
    EXPECT_EQ(take(), u"r11 r4"_s);
    recordset->Delete();
    EXPECT_EQ(take(), u"r2"_s);
    recordset->Close();
    EXPECT_EQ(take(), u"s9"_s);
    recordset->Open(u"SELECT 1"_s, database.connect());
    EXPECT_EQ(take(), u"s7 m10"_s);
}

TEST_F(AdodcTest, ReportsNothingWhenBlocked)
{
    const auto recordset = database.open(u"SELECT * FROM t"_s);
    adodc.PutRecordset(recordset);
    take();
    {
        const QSignalBlocker quiet(adodc);
        recordset->MoveLast();
        recordset->MoveFirst();
    }
    EXPECT_EQ(take(), QString());
    recordset->MoveNext();
    EXPECT_EQ(take(), u"m13"_s);
    for (qint64 record = 1; record <= 3; ++record)
        recordset->CellText(record, 1);
    EXPECT_EQ(take(), QString()) << "reading cells is no move";
}

TEST_F(AdodcTest, ReleasesARecordsetThatIsReplaced)
{
    const auto first = database.open(u"SELECT * FROM t"_s);
    adodc.PutRecordset(first);
    adodc.PutRecordset(std::make_shared<Recordset>());
    take();
    first->MoveNext();
    EXPECT_EQ(take(), QString());
    adodc.PutRecordset(nullptr);
    EXPECT_EQ(adodc.property("Recordset").value<QObject *>(), nullptr);
    auto survivor = database.open(u"SELECT * FROM t"_s);
    {
        Adodc other;
        other.PutRecordset(survivor);
    }
    survivor->MoveNext();
}

TEST_F(AdodcTest, CanBeRemovedDuringANotification)
{
    const auto recordset = database.open(u"SELECT * FROM t"_s);
    auto first = std::make_unique<Adodc>();
    auto second = std::make_unique<Adodc>();
    first->PutRecordset(recordset);
    second->PutRecordset(recordset);
    QObject::connect(first.get(), &Adodc::MoveComplete, &adodc, [&] { second.reset(); });
    recordset->MoveNext();
    EXPECT_EQ(second, nullptr);
    recordset->MoveNext();
}

} // namespace
