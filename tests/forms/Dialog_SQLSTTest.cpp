#include "forms/Dialog_SQLST.h"

#include "support/Dialogs.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

struct SqlDialog : testing::Test
{
    SqlDialog()
    {
        dialog.SetLabel(u"SQLShow:"_s);
        dialog.SetText(u"select 1"_s);
    }
    void show(bool canAllow, bool isAllowed)
    {
        dialog.SetEditing(canAllow, isAllowed);
        present(dialog);
    }
    QLineEdit &text() const { return part<QLineEdit>(dialog, "Text_SQL"); }
    void type(const QString &typed) const
    {
        text().selectAll();
        QTest::keyClicks(&text(), typed);
    }

    Dialog_SQLST dialog;
};

} // namespace

TEST_F(SqlDialog, ShowsTheTextUnderItsLabel)
{
    show(true, false);
    EXPECT_EQ(dialog.objectName(), u"Dialog_SQLST"_s);
    EXPECT_EQ(part<QLabel>(dialog, "Label_what").text(), u"SQLShow:"_s);
    EXPECT_EQ(text().text(), u"select 1"_s);
    EXPECT_EQ(text().accessibleName(), u"SQLShow:"_s);
    EXPECT_FALSE(part<QLabel>(dialog, "Label2").text().isEmpty());
}

TEST_F(SqlDialog, TheTextCanBeEditedOnlyWhenTheBoxIsTicked)
{
    show(true, false);
    type(u"typed"_s);
    EXPECT_EQ(text().text(), u"select 1"_s);
    press(dialog, "Check_AllowEd");
    type(u"select 2"_s);
    EXPECT_EQ(text().text(), u"select 2"_s);
    press(dialog, "Check_AllowEd");
    type(u"select 3"_s);
    EXPECT_EQ(text().text(), u"select 2"_s);
}

TEST_F(SqlDialog, OkTakesTheTextWhenEditingIsAllowed)
{
    show(true, true);
    type(u"select 2"_s);
    press(dialog, "OKButton");
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.result(), u"select 2"_s);
}

TEST_F(SqlDialog, OkGivesNoResultWhenEditingIsNotAllowed)
{
    show(true, true);
    type(u"select 2"_s);
    press(dialog, "Check_AllowEd");
    press(dialog, "OKButton");
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_FALSE(dialog.result());
}

TEST_F(SqlDialog, CancelAndEscGiveNoResult)
{
    show(true, true);
    type(u"select 2"_s);
    press(dialog, "CancelButton");
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_FALSE(dialog.result());
    present(dialog);
    key(dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_FALSE(dialog.result());
}

TEST_F(SqlDialog, EnterIsOk)
{
    show(true, true);
    type(u"select 2"_s);
    key(dialog, Qt::Key_Return);
    EXPECT_EQ(dialog.result(), u"select 2"_s);
}

TEST_F(SqlDialog, EditingCanBeForbidden)
{
    show(false, false);
    EXPECT_FALSE(part(dialog, "Check_AllowEd").isEnabled());
    press(dialog, "Check_AllowEd");
    type(u"typed"_s);
    EXPECT_EQ(text().text(), u"select 1"_s);
    press(dialog, "OKButton");
    EXPECT_FALSE(dialog.result());
}

TEST_F(SqlDialog, LinesOfAStatementSurvive)
{
    dialog.SetText(u"select 1\nfrom T"_s);
    show(true, true);
    press(dialog, "OKButton");
    EXPECT_EQ(dialog.result(), u"select 1\nfrom T"_s);
}
