// From GetConnection through the connection builder and back.
#include <KOVAVSFDataGrid>

#include "support/Dialogs.h"
#include "support/TestDatabase.h"
#include "support/WindowAnswers.h"

#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <gtest/gtest.h>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

struct BuildConnection : testing::Test
{
    TestDatabase database{u"CREATE TABLE T (ID INTEGER PRIMARY KEY)"_s};
    KOVAVSFDataGrid grid;
};

} // namespace

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
                               EXPECT_EQ(part<QLabel>(builder, "lblTest").text(), u"连接成功。"_s);
                               press(builder, "OKButton");
                           }});
    grid.GetConnection();
    EXPECT_EQ(grid.ConnectionString(), database.connectionString());
}

TEST_F(BuildConnection, AFailedTestTellsWhyAndCancelKeepsTheOldString)
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
