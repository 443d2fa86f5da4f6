// How long a result and its file stay open. No event loop runs in these tests, as in a host without one.
#include "control/face/KOVAVSFDataGrid.h"

#include "ado/Adodc.h"
#include "ado/Recordset.h"
#include "support/TestDatabase.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QPointer>
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

struct Lifetime : testing::Test
{
    Lifetime()
    {
        grid->PutConnectionString(database.connectionString());
        grid->PutSQLShow(u"SELECT * FROM T"_s);
    }

    // Where the system tells which files a process has open.
    static bool canSeeFiles() { return QDir(u"/proc/self/fd"_s).exists(); }
    bool isFileOpen() const
    {
        const QFileInfoList files = QDir(u"/proc/self/fd"_s).entryInfoList(QDir::System | QDir::Files);
        return std::any_of(files.cbegin(), files.cend(), [&](const QFileInfo &file) {
            return file.symLinkTarget() == QFileInfo(database.path()).canonicalFilePath();
        });
    }

    TestDatabase database{u"CREATE TABLE T(ID INTEGER PRIMARY KEY, A TEXT);"
                          "INSERT INTO T VALUES (1,'a'),(2,'b');"_s};
    std::unique_ptr<KOVAVSFDataGrid> grid = std::make_unique<KOVAVSFDataGrid>();
};

} // namespace

TEST_F(Lifetime, TheResultIsClosedWithTheControl)
{
    ASSERT_TRUE(grid->IsLoadData());
    const QPointer<QObject> recordset = grid->RecordSet();
    ASSERT_EQ(recordset->property("State"), ADODB::adStateOpen);
    EXPECT_EQ(isFileOpen(), canSeeFiles());
    grid.reset();
    EXPECT_FALSE(isFileOpen());
    EXPECT_TRUE(!recordset || recordset->property("State") == ADODB::adStateClosed);
}

TEST_F(Lifetime, TheResultIsClosedWithAControlThatIsDeletedDuringItsNotification)
{
    QObject::connect(grid.get(), &KOVAVSFDataGrid::RecordsetChanged, grid.get(), [this] { grid.reset(); });
    EXPECT_FALSE(grid->IsLoadData());
    EXPECT_FALSE(grid);
    EXPECT_FALSE(isFileOpen());
}

TEST_F(Lifetime, TheResultIsClosedWithAControlThatIsDeletedInAMove)
{
    ASSERT_TRUE(grid->IsLoadData());
    QObject::connect(grid.get(), &KOVAVSFDataGrid::RecordChanged, grid.get(), [this] { grid.reset(); });
    QMetaObject::invokeMethod(grid->RecordSet(), "MoveNext");
    EXPECT_FALSE(grid);
    EXPECT_FALSE(isFileOpen());
}

TEST_F(Lifetime, AReplacedResultIsClosed)
{
    ASSERT_TRUE(grid->IsLoadData());
    const auto before = qobject_cast<ADODB::Adodc *>(grid->GetBond())->Recordset();
    ASSERT_TRUE(grid->IsLoadData());
    EXPECT_EQ(before->State(), ADODB::adStateClosed);
}

TEST_F(Lifetime, AResultThatTheHostHoldsStaysOpen)
{
    ASSERT_TRUE(grid->IsLoadData());
    auto recordset = qobject_cast<ADODB::Adodc *>(grid->GetBond())->Recordset();
    grid.reset();
    ASSERT_EQ(recordset->State(), ADODB::adStateOpen);
    recordset->MoveLast();
    EXPECT_EQ(recordset->CellText(2, 1), u"b"_s);
    recordset->Fields().Item(u"A"_s).PutValue(u"c"_s);
    recordset->Update();
    EXPECT_EQ(database.ask(u"SELECT A FROM T WHERE ID = 2"_s), u"c"_s);
    recordset.reset();
    EXPECT_FALSE(isFileOpen()) << "whoever holds it last closes it";
}
