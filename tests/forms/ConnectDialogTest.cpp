#include "forms/ConnectDialog.h"

#include "support/Dialogs.h"

#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

struct Connect : testing::Test
{
    Connect()
    {
        dialog.SetConnectionString(u"DSN=old"_s);
        present(dialog);
    }
    QLineEdit &text() const { return part<QLineEdit>(dialog, "TextCS"); }
    QString prompt() const { return part<QLabel>(dialog, "Label2").text(); }
    bool isEnabled(const char *name) const { return part(dialog, name).isEnabled(); }
    void type(const QString &typed)
    {
        text().selectAll();
        QTest::keyClicks(&text(), typed);
    }

    std::optional<QString> answer;
    QString givenToBuilder;
    ConnectDialog dialog{[this](QWidget *, const QString &present) {
        givenToBuilder = present;
        return answer;
    }};
};

} // namespace

TEST_F(Connect, OkTakesTheTypedString)
{
    EXPECT_EQ(prompt(), u"Input ConnectionString:"_s);
    EXPECT_EQ(text().text(), u"DSN=old"_s);
    type(u"DSN=new"_s);
    press(dialog, "OKButton");
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.connectionString(), u"DSN=new"_s);
    EXPECT_FALSE(dialog.sqlShow());
}

TEST_F(Connect, CancelAndEscChangeNothing)
{
    type(u"DSN=new"_s);
    press(dialog, "CancelButton");
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_FALSE(dialog.connectionString());
    present(dialog);
    key(dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_FALSE(dialog.connectionString());
}

TEST_F(Connect, TheStatementIsAskedForInTheSameDialog)
{
    press(dialog, "Check_con");
    press(dialog, "OKButton");
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_FALSE(isEnabled("Check_con"));
    EXPECT_EQ(prompt(), u"Input SQLShow:"_s);
    EXPECT_TRUE(text().text().isEmpty());
    type(u"select * from T"_s);
    key(dialog, Qt::Key_Return);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.connectionString(), u"DSN=old"_s);
    EXPECT_EQ(dialog.sqlShow(), u"select * from T"_s);
}

TEST_F(Connect, CancellingTheStatementChangesNothingAtAll)
{
    press(dialog, "Check_con");
    press(dialog, "OKButton");
    press(dialog, "CancelButton");
    EXPECT_FALSE(dialog.connectionString());
    EXPECT_FALSE(dialog.sqlShow());
}

TEST_F(Connect, TheBuilderIsOfferedOnlyWhenTheStringIsToBeBuilt)
{
    EXPECT_TRUE(part<QAbstractButton>(dialog, "OptionSTR").isChecked());
    EXPECT_FALSE(isEnabled("cmd_link"));
    press(dialog, "OptionLINK");
    EXPECT_TRUE(isEnabled("cmd_link"));
    EXPECT_TRUE(text().isReadOnly());
    press(dialog, "OptionSTR");
    EXPECT_FALSE(isEnabled("cmd_link"));
    EXPECT_FALSE(text().isReadOnly());
}

TEST_F(Connect, WhatWasBuiltIsTakenOver)
{
    press(dialog, "OptionLINK");
    answer = u"Provider=SQLite;Data Source=a.db"_s;
    press(dialog, "cmd_link");
    EXPECT_EQ(givenToBuilder, u"DSN=old"_s);
    EXPECT_EQ(text().text(), *answer);
}

TEST_F(Connect, ACancelledBuilderLeavesTheString)
{
    press(dialog, "OptionLINK");
    press(dialog, "cmd_link");
    EXPECT_EQ(text().text(), u"DSN=old"_s);
}

TEST(ConnectDialogAlone, WithoutABuilderTheButtonIsDisabledAndSaysWhy)
{
    ConnectDialog dialog({});
    present(dialog);
    press(dialog, "OptionLINK");
    EXPECT_FALSE(part(dialog, "cmd_link").isEnabled());
    EXPECT_EQ(part(dialog, "cmd_link").toolTip(),
              u"No connection builder is available here; type the connection string."_s);
}

TEST_F(Connect, TheStatementCanNotBeBuilt)
{
    press(dialog, "OptionLINK");
    press(dialog, "Check_con");
    press(dialog, "OKButton");
    EXPECT_FALSE(isEnabled("cmd_link"));
    EXPECT_FALSE(text().isReadOnly());
    EXPECT_FALSE(part<QLabel>(dialog, "Label3").text().isEmpty());
}
