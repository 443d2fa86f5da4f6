#include "filter/frm_Filter.h"

#include "filter/SetFilter.h"
#include "support/Dialogs.h"
#include "support/MessageAnswers.h"
#include "support/TestDatabase.h"

#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>
#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

struct FilterForm : testing::Test
{
    FilterForm()
    {
        dialog.SetFilter1().Initialize(u"当前使用数据表"_s, dbAccess);
        dialog.SetFilter1().SetConnectionString(database.connectionString());
        dialog.SetFilter1().SetTableName(u"T"_s);
        present(dialog);
    }
    QLineEdit &value() const { return part<QLineEdit>(dialog, "txtValue1"); }

    TestDatabase database{u"CREATE TABLE T (ID INTEGER)"_s};
    frm_Filter dialog;
};

} // namespace

TEST_F(FilterForm, AConditionEndsIt)
{
    QTest::keyClicks(&value(), u"3"_s);
    press(dialog, "cmd_Filter");
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.strFilterCondition(), u"ID = 3"_s);
}

TEST_F(FilterForm, EnterFilters)
{
    QTest::keyClicks(&value(), u"3"_s);
    QTest::keyClick(&value(), Qt::Key_Return);
    EXPECT_EQ(dialog.strFilterCondition(), u"ID = 3"_s);
}

TEST_F(FilterForm, WithoutAConditionItStaysOpen)
{
    press(dialog, "cmd_Filter");
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_TRUE(dialog.strFilterCondition().isEmpty());
}

TEST_F(FilterForm, CancelEscAndTheCloseBoxLeaveNoCondition)
{
    QTest::keyClicks(&value(), u"3"_s);
    press(dialog, "cmd_Cancel");
    EXPECT_FALSE(dialog.isVisible());
    value().clear();
    present(dialog);
    QTest::keyClick(&value(), Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
    present(dialog);
    EXPECT_TRUE(dialog.close());
    EXPECT_TRUE(dialog.strFilterCondition().isEmpty());
}

TEST_F(FilterForm, EscAsksBeforeItGivesUpWhatWasTyped)
{
    MessageAnswers answers({QMessageBox::No, QMessageBox::Yes});
    QTest::keyClicks(&value(), u"3"_s);
    QTest::keyClick(&value(), Qt::Key_Escape);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(value().text(), u"3"_s);
    QTest::keyClick(&value(), Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(answers.texts(), QStringList({u"放弃已输入的条件吗？"_s, u"放弃已输入的条件吗？"_s}));
}

TEST_F(FilterForm, EscAsksNothingAboutWhatTheDialogBeganWith)
{
    dialog.SetFilter1().Suggest(u"ID"_s, u"7"_s);
    EXPECT_EQ(value().text(), u"7"_s);
    QTest::keyClick(&value(), Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(FilterForm, TheKeyboardBeginsWithTheFieldAndEndsWithTheButtons)
{
    EXPECT_EQ(walkedByTab(dialog, 9),
              "cmbField1 cmbOperator1 txtValue1 cmbClose1 cmdAddRow chkGroups chkSql cmd_Filter cmd_Cancel");
}

TEST_F(FilterForm, AltF4LeavesNoCondition)
{
    QTest::keyClicks(&value(), u"3"_s);
    closeFromTheFrame(dialog);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
    EXPECT_TRUE(dialog.strFilterCondition().isEmpty());
}

TEST_F(FilterForm, MnemonicsAddARowAndFilter)
{
    key(dialog, Qt::Key_D, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return dialog.findChild<QWidget *>(u"cmbField2"_s) != nullptr; }));
    press(dialog, "cmdDeleteRow2");
    QTest::keyClicks(&value(), u"3"_s);
    key(dialog, Qt::Key_Q, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return part(dialog, "txtCondition").isVisible(); }));
    part(dialog, "cmbField1").setFocus();
    key(dialog, Qt::Key_T, Qt::AltModifier);
    EXPECT_EQ(dialog.focusWidget(), &part(dialog, "txtCondition"));
    key(dialog, Qt::Key_F, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !dialog.isVisible(); }));
    EXPECT_EQ(dialog.strFilterCondition(), u"ID = 3"_s);
}

TEST_F(FilterForm, ASmallScreenHoldsItWithItsWidestRow)
{
    part<QComboBox>(dialog, "cmbOperator1").setCurrentText(u"不介于"_s);
    press(dialog, "cmdAddRow");
    EXPECT_TRUE(part(dialog, "chkWithNull1").isVisible());
    EXPECT_LE(dialog.minimumSizeHint().width(), 800);
    EXPECT_LE(dialog.minimumSizeHint().height(), 600);
    EXPECT_LE(dialog.height(), 600);
    dialog.resize(800, 600);
    QCoreApplication::processEvents();
    for (const char *name : {"txtValue1", "txtValue1b", "chkWithNull1", "cmbJoin1"}) {
        const QWidget &shown = part(dialog, name);
        EXPECT_GE(shown.width(), name[0] == 't' ? 80 : shown.sizeHint().width()) << name;
        EXPECT_TRUE(shown.parentWidget()->rect().contains(shown.geometry())) << name;
    }
    EXPECT_FALSE(part(dialog, "txtValue1").geometry().intersects(part(dialog, "chkWithNull1").geometry()));
}

TEST_F(FilterForm, HasItsDecoration)
{
    for (const char *name : {"GradualControl1", "pic_BackGround1", "Picture2", "Label2", "SetFilter1"})
        EXPECT_TRUE(part(dialog, name).isVisible()) << name;
}
