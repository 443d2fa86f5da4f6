// From GetConnection through the connection builder and back.
#include <KOVAVSFDataGrid>

#include "ado/Connection.h"
#include "ado/ConnectionFactory.h"
#include "ado/Recordset.h"
#include "ado/connection/OdbcCatalogue.h"
#include "support/Dialogs.h"
#include "support/ExpectedWarnings.h"
#include "support/MessageAnswers.h"
#include "support/TestDatabase.h"
#include "support/WindowAnswers.h"

#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <gtest/gtest.h>

#include <stdexcept>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

struct BuildConnection : testing::Test
{
    TestDatabase database{u"CREATE TABLE T (ID INTEGER PRIMARY KEY)"_s};
    KOVAVSFDataGrid grid;
};

// Hands out connections as ever and notes for which database.
class NotingFactory : public ADODB::ConnectionFactory
{
public:
    explicit NotingFactory(QList<qint32> &asked) : m_asked(asked) {}
    void SetThreeTier(bool) override {}
    bool ThreeTier() const override { return true; }
    std::shared_ptr<ADODB::Connection> newConnection(qint32 dbType) override
    {
        m_asked += dbType;
        return std::make_shared<ADODB::Connection>();
    }
    std::shared_ptr<ADODB::Recordset> newRecordset(qint32) override
    {
        return std::make_shared<ADODB::Recordset>();
    }

private:
    QList<qint32> &m_asked;
};

} // namespace

TEST_F(BuildConnection, OnlyOraclesConnectionComesFromTheFactory)
{
    QList<qint32> asked;
    ADODB::ConnectionFactory::setInstance(std::make_unique<NotingFactory>(asked));
    for (const auto type :
         {KOVAVSFDataGrid::dbAccess, KOVAVSFDataGrid::dbOracle, KOVAVSFDataGrid::dbSQLServer}) {
        grid.PutDBType(type);
        WindowAnswers windows({[](QDialog &connect) {
                                   press(connect, "OptionLINK");
                                   press(connect, "cmd_link");
                                   press(connect, "CancelButton");
                               },
                               [](QDialog &builder) { press(builder, "CancelButton"); }});
        grid.GetConnection();
    }
    EXPECT_EQ(asked, QList<qint32>({2}));
    ADODB::ConnectionFactory::setInstance(nullptr);
    grid.PutDBType(KOVAVSFDataGrid::dbAccess);
}

TEST_F(BuildConnection, AFactoryThatFailsIsReportedAndLeavesTheString)
{
    class FailingFactory final : public NotingFactory
    {
    public:
        using NotingFactory::NotingFactory;
        std::shared_ptr<ADODB::Connection> newConnection(qint32 dbType) override
        {
            NotingFactory::newConnection(dbType);
            throw std::runtime_error("the tier is away");
        }
    };
    QList<qint32> asked;
    ADODB::ConnectionFactory::setInstance(std::make_unique<FailingFactory>(asked));
    grid.PutDBType(KOVAVSFDataGrid::dbOracle);
    grid.PutConnectionString(u"DSN=old"_s);
    MessageAnswers messages;
    const ExpectedWarning logged(u"the tier is away"_s);
    WindowAnswers windows({[](QDialog &connect) {
        press(connect, "OptionLINK");
        press(connect, "cmd_link");
        press(connect, "OKButton");
    }});
    grid.GetConnection();
    EXPECT_EQ(messages.texts(), QStringList(u"The connection failed: the tier is away"_s));
    EXPECT_EQ(grid.ConnectionString(), u"DSN=old"_s);
    ADODB::ConnectionFactory::setInstance(nullptr);
    grid.PutDBType(KOVAVSFDataGrid::dbAccess);
}

TEST_F(BuildConnection, WhatWasBuiltAndTriedBecomesTheConnectionString)
{
    WindowAnswers windows({[](QDialog &connect) {
                               press(connect, "OptionLINK");
                               press(connect, "cmd_link");
                               press(connect, "OKButton");
                           },
                           [this](QDialog &builder) {
                               EXPECT_EQ(builder.objectName(), u"ConnectionBuilder"_s);
                               part<QLineEdit>(builder, "txtFile").setText(database.path());
                               press(builder, "cmdTest");
                               EXPECT_EQ(part<QLabel>(builder, "lblTest").text(), u"Connected."_s);
                               press(builder, "OKButton");
                           }});
    grid.GetConnection();
    EXPECT_EQ(grid.ConnectionString(), database.connectionString());
}

TEST_F(BuildConnection, OffersTheDriversOfThisMachine)
{
    WindowAnswers windows({[](QDialog &connect) {
                               press(connect, "OptionLINK");
                               press(connect, "cmd_link");
                               press(connect, "CancelButton");
                           },
                           [](QDialog &builder) {
                               const auto &targets = part<QComboBox>(builder, "cmbTarget");
                               const QStringList drivers = ADODB::odbcDrivers();
                               for (const QString &driver : drivers)
                                   EXPECT_GE(targets.findText(u"ODBC driver "_s + driver), 0)
                                       << qPrintable(driver);
                               const auto sources = static_cast<qsizetype>(ADODB::odbcDataSources().size());
                               EXPECT_EQ(targets.count(), 2 + drivers.size() + sources);
                               press(builder, "CancelButton");
                           }});
    grid.GetConnection();
}

TEST_F(BuildConnection, AFailedTestSaysWhyAndCancelKeepsTheOldString)
{
    grid.PutConnectionString(u"Provider=SQLite;Data Source=old.db"_s);
    WindowAnswers windows(
        {[](QDialog &connect) {
             press(connect, "OptionLINK");
             press(connect, "cmd_link");
             EXPECT_EQ(part<QLineEdit>(connect, "TextCS").text(), u"Provider=SQLite;Data Source=old.db"_s);
             press(connect, "CancelButton");
         },
         [this](QDialog &builder) {
             EXPECT_EQ(part<QLineEdit>(builder, "txtFile").text(), u"old.db"_s);
             part<QLineEdit>(builder, "txtFile").setText(database.path() + u"x"_s);
             press(builder, "cmdTest");
             EXPECT_TRUE(part<QLabel>(builder, "lblTest").text().contains(database.path() + u"x"_s));
             press(builder, "CancelButton");
         }});
    grid.GetConnection();
    EXPECT_EQ(grid.ConnectionString(), u"Provider=SQLite;Data Source=old.db"_s);
}

TEST_F(BuildConnection, TheBuiltStringIsFollowedByTheStatement)
{
    WindowAnswers windows({[](QDialog &connect) {
                               press(connect, "OptionLINK");
                               press(connect, "cmd_link");
                               press(connect, "Check_con");
                               press(connect, "OKButton");
                               part<QLineEdit>(connect, "TextCS").setText(u"select * from T"_s);
                               press(connect, "OKButton");
                           },
                           [this](QDialog &builder) {
                               part<QLineEdit>(builder, "txtFile").setText(database.path());
                               press(builder, "OKButton");
                           }});
    grid.GetConnection();
    EXPECT_EQ(grid.SQLShow(), u"select * from T"_s);
    EXPECT_TRUE(grid.IsLoadData());
}
