#include "pages/PartDisplayField.h"

#include "SomeControl.h"
#include "support/Dialogs.h"

#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>
#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

struct PartPage : testing::Test
{
    PartPage()
    {
        control.sqlShow = u"select ID, [Full Name], City from Staff where Age > 3"_s;
        control.sqlPartDisplay = u" select [City] from Staff "_s;
        page.SetSelectedControls({&control});
        page.show();
    }
    QListWidget &list(const char *name) const { return part<QListWidget>(page, name); }
    QStringList fields(const char *name) const
    {
        QStringList fields;
        for (int row = 0; row < list(name).count(); ++row)
            fields += list(name).item(row)->text();
        return fields;
    }
    QString text() const { return part<QLineEdit>(page, "txtSQLPartDisplay").text(); }
    void click(const char *name, int row) const
    {
        QTest::mouseClick(list(name).viewport(), Qt::LeftButton, {}, centre(name, row));
    }
    void doubleClick(const char *name, int row) const
    {
        click(name, row);
        QTest::mouseDClick(list(name).viewport(), Qt::LeftButton, {}, centre(name, row));
    }
    QPoint centre(const char *name, int row) const
    {
        return list(name).visualItemRect(list(name).item(row)).center();
    }

    SomeControl control;
    PartDisplayField page;
};

} // namespace

TEST_F(PartPage, ShowsChosenFieldsAndTheOthers)
{
    EXPECT_EQ(text(), u"select [City] from Staff"_s);
    EXPECT_EQ(fields("List_Cho"), QStringList(u"City"_s));
    EXPECT_EQ(fields("List_NotCho"), QStringList({u"ID"_s, u"Full Name"_s}));
    EXPECT_FALSE(page.Changed());
}

TEST_F(PartPage, AddMovesTheSelectedFieldAndRebuildsTheStatement)
{
    click("List_NotCho", 1);
    press(page, "Cmd_add");
    EXPECT_EQ(fields("List_Cho"), QStringList({u"City"_s, u"Full Name"_s}));
    EXPECT_EQ(fields("List_NotCho"), QStringList(u"ID"_s));
    EXPECT_EQ(text(), u"select [City],[Full Name] from Staff"_s);
    EXPECT_TRUE(page.Changed());
    EXPECT_TRUE(page.ApplyChanges());
    EXPECT_EQ(control.sqlPartDisplay, u"select [City],[Full Name] from Staff"_s);
}

TEST_F(PartPage, ADoubleClickAddsToo)
{
    doubleClick("List_NotCho", 0);
    EXPECT_EQ(fields("List_Cho"), QStringList({u"City"_s, u"ID"_s}));
    EXPECT_EQ(text(), u"select [City],[ID] from Staff"_s);
}

TEST_F(PartPage, RemoveMovesTheFieldBack)
{
    doubleClick("List_NotCho", 0);
    click("List_Cho", 0);
    press(page, "Cmd_Abs");
    EXPECT_EQ(fields("List_Cho"), QStringList(u"ID"_s));
    EXPECT_EQ(fields("List_NotCho"), QStringList({u"Full Name"_s, u"City"_s}));
    EXPECT_EQ(text(), u"select [ID] from Staff"_s);
}

TEST_F(PartPage, ADoubleClickRemovesTooAndNoFieldLeavesNoStatement)
{
    doubleClick("List_Cho", 0);
    EXPECT_TRUE(fields("List_Cho").isEmpty());
    EXPECT_TRUE(text().isEmpty());
}

TEST_F(PartPage, ADoubleClickBesideTheFieldsMovesNothing)
{
    click("List_NotCho", 0);
    QTest::mouseDClick(list("List_NotCho").viewport(), Qt::LeftButton, {},
                       centre("List_NotCho", 1) + QPoint(0, 60));
    EXPECT_EQ(fields("List_Cho"), QStringList(u"City"_s));
}

TEST_F(PartPage, OtherDatabasesGetTheNamesAsWritten)
{
    control.dbType = 3;
    page.SelectionChanged();
    doubleClick("List_NotCho", 1);
    EXPECT_EQ(text(), u"select [City],[Full Name] from Staff"_s);
    doubleClick("List_NotCho", 0);
    EXPECT_EQ(text(), u"select [City],[Full Name],ID from Staff"_s);
}

TEST_F(PartPage, WithoutATableTheListsStayAndOnlyTheTextIsShown)
{
    control.sqlShow = u"select"_s;
    control.sqlPartDisplay = u" nonsense "_s;
    page.SelectionChanged();
    EXPECT_EQ(text(), u"nonsense"_s);
    EXPECT_EQ(fields("List_Cho"), QStringList(u"City"_s));
    EXPECT_EQ(fields("List_NotCho"), QStringList({u"ID"_s, u"Full Name"_s}));
    EXPECT_FALSE(page.Changed());
}

TEST_F(PartPage, WithoutAPartStatementEveryFieldIsOffered)
{
    control.sqlPartDisplay.clear();
    page.SelectionChanged();
    EXPECT_TRUE(fields("List_Cho").isEmpty());
    EXPECT_EQ(fields("List_NotCho"), QStringList({u"ID"_s, u"Full Name"_s, u"City"_s}));
    doubleClick("List_NotCho", 1);
    EXPECT_EQ(text(), u"select [Full Name] from Staff"_s);
}

TEST_F(PartPage, TheTableIsThatOfTheStatementWhoseFieldsAreOffered)
{
    control.sqlPartDisplay = u"select City from OldStaff"_s;
    page.SelectionChanged();
    doubleClick("List_NotCho", 0);
    EXPECT_EQ(text(), u"select [City],[ID] from Staff"_s);
}

TEST_F(PartPage, AStarOffersTheFieldsOfTheTable)
{
    page.SetFieldReader([](const QObject &asked, const QString &statement) -> std::optional<QStringList> {
        EXPECT_EQ(asked.property("SQLShow").toString(), u"select * from Staff where Age > 3"_s);
        return statement == u"select * from Staff" ? std::optional(QStringList{u"ID"_s, u"City"_s, u"Age"_s})
                                                   : std::nullopt;
    });
    control.sqlShow = u"select * from Staff where Age > 3"_s;
    page.SelectionChanged();
    EXPECT_EQ(fields("List_Cho"), QStringList(u"City"_s));
    EXPECT_EQ(fields("List_NotCho"), QStringList({u"ID"_s, u"Age"_s}));
    doubleClick("List_NotCho", 1);
    EXPECT_EQ(text(), u"select [City],[Age] from Staff"_s);
}

TEST_F(PartPage, AMovedFieldIsSelectedSoThatItCanGoBack)
{
    click("List_NotCho", 1);
    press(page, "Cmd_add");
    press(page, "Cmd_Abs");
    EXPECT_EQ(text(), u"select [City] from Staff"_s);
    EXPECT_EQ(fields("List_NotCho"), QStringList({u"ID"_s, u"Full Name"_s}));
}

TEST_F(PartPage, TheButtonsWaitForASelection)
{
    EXPECT_FALSE(part(page, "Cmd_add").isEnabled());
    EXPECT_FALSE(part(page, "Cmd_Abs").isEnabled());
    click("List_NotCho", 0);
    EXPECT_TRUE(part(page, "Cmd_add").isEnabled());
    EXPECT_FALSE(part(page, "Cmd_Abs").isEnabled());
}
