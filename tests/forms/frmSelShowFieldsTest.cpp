#include "forms/frmSelShowFields.h"

#include "support/Dialogs.h"
#include "support/MessageAnswers.h"

#include <QtTest/QSignalSpy>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTreeWidget>
#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

struct ShowFields : testing::Test
{
    void fill(const QStringList &all, const QStringList &shown = {})
    {
        EXPECT_TRUE(dialog.AppendListFields(&all));
        EXPECT_TRUE(dialog.SetListFieldCheck(&shown));
        present(dialog);
    }
    QTreeWidget &list() const { return part<QTreeWidget>(dialog, "lvSelField"); }
    QStringList checked() const
    {
        QStringList names;
        for (int row = 0; row < list().topLevelItemCount(); ++row) {
            if (list().topLevelItem(row)->checkState(0) == Qt::Checked)
                names.append(list().topLevelItem(row)->text(0));
        }
        return names;
    }
    QStringList listed() const
    {
        QStringList names;
        for (int row = 0; row < list().topLevelItemCount(); ++row) {
            if (!list().topLevelItem(row)->isHidden())
                names.append(list().topLevelItem(row)->text(0));
        }
        return names;
    }
    bool isEnabled(const char *name) const { return part(dialog, name).isEnabled(); }

    frmSelShowFields dialog;
    MessageAnswers messages;
};

} // namespace

TEST_F(ShowFields, ListsTheFieldsInTheirOrderWithNothingChecked)
{
    fill({u"编号"_s, u"Name"_s, u"Unit Price"_s});
    EXPECT_EQ(listed(), (QStringList{u"编号"_s, u"Name"_s, u"Unit Price"_s}));
    EXPECT_TRUE(checked().isEmpty());
    EXPECT_EQ(part<QLabel>(dialog, "lblCheckedCount").text(), u"已选 0 个，共 3 个"_s);
}

TEST_F(ShowFields, AMissingListChangesNothing)
{
    fill({u"A"_s, u"B"_s}, {u"B"_s});
    EXPECT_FALSE(dialog.AppendListFields(nullptr));
    EXPECT_FALSE(dialog.SetListFieldCheck(nullptr));
    EXPECT_EQ(listed().size(), 2);
    EXPECT_EQ(checked(), QStringList{u"B"_s});
}

TEST_F(ShowFields, FillingAgainReplacesTheList)
{
    fill({u"A"_s, u"B"_s}, {u"B"_s});
    fill({u"C"_s});
    EXPECT_EQ(listed(), QStringList{u"C"_s});
    EXPECT_TRUE(checked().isEmpty());
}

TEST_F(ShowFields, ChecksPlainBracketedAndQuotedNames)
{
    fill({u"A"_s, u"Unit Price"_s, u"C"_s, u"D"_s}, {u"[Unit Price]"_s, u"\"C\""_s, u"D"_s, u"Unknown"_s});
    EXPECT_EQ(checked(), (QStringList{u"Unit Price"_s, u"C"_s, u"D"_s}));
}

TEST_F(ShowFields, AnEmptyTitleLeavesTheOneShown)
{
    dialog.SetTitle(u"订单"_s);
    dialog.SetTitle(QString());
    EXPECT_EQ(part<QLineEdit>(dialog, "txtTableName").text(), u"订单"_s);
}

TEST_F(ShowFields, TheSpaceBarTicksAndOkAnswersTheTickedFields)
{
    fill({u"A"_s, u"B"_s, u"C"_s});
    key(dialog, Qt::Key_Space);
    key(dialog, Qt::Key_Down);
    key(dialog, Qt::Key_Down);
    key(dialog, Qt::Key_Space);
    EXPECT_EQ(part<QLabel>(dialog, "lblCheckedCount").text(), u"已选 2 个，共 3 个"_s);
    press(dialog, "cmdOK");
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(dialog.strRetFields(), u"A,C"_s);
}

TEST_F(ShowFields, NamesWithBlanksOrParenthesesComeBackInBracketsOnce)
{
    const QStringList all{u"Unit Price"_s, u"单价(元)"_s, u"[In Brackets]"_s, u"Plain"_s};
    fill(all, all);
    press(dialog, "cmdCheckAll");
    press(dialog, "cmdOK");
    EXPECT_EQ(dialog.strRetFields(), u"[Unit Price],[单价(元)],[In Brackets],Plain"_s);
}

TEST_F(ShowFields, OkWithoutAFieldSaysSoAndStaysOpen)
{
    fill({u"A"_s});
    key(dialog, Qt::Key_Enter);
    EXPECT_EQ(messages.texts(), QStringList{u"至少选择一列"_s});
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_TRUE(dialog.strRetFields().isEmpty());
}

TEST_F(ShowFields, CancelAndEscLeaveNoResult)
{
    fill({u"A"_s}, {u"A"_s});
    press(dialog, "cmdCancel");
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_TRUE(dialog.strRetFields().isEmpty());

    present(dialog);
    key(dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
    EXPECT_TRUE(dialog.strRetFields().isEmpty());
}

TEST_F(ShowFields, ClosingTheWindowIsRefused)
{
    fill({u"A"_s}, {u"A"_s});
    QSignalSpy finished(&dialog, &QDialog::finished);
    // What both the frame's close box and Alt+F4 arrive as.
    EXPECT_FALSE(dialog.close());
    closeFromTheFrame(dialog);
    key(dialog, Qt::Key_F4, Qt::AltModifier); // if it arrives as a key
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(finished.count(), 0);
    press(dialog, "cmdOK");
    EXPECT_EQ(dialog.strRetFields(), u"A"_s); // it still works
}

TEST_F(ShowFields, FillingAgainListsOnlyWhatIsSearchedFor)
{
    fill({u"Alpha"_s});
    QTest::keyClicks(&part<QLineEdit>(dialog, "txtSearchField"), u"be"_s);
    EXPECT_TRUE(listed().isEmpty());
    EXPECT_FALSE(isEnabled("cmdCheckInvert"));
    fill({u"Gamma"_s, u"Beta"_s});
    EXPECT_EQ(listed(), QStringList{u"Beta"_s});
    EXPECT_EQ(list().currentItem()->text(0), u"Beta"_s);
}

TEST_F(ShowFields, TheKeyboardBeginsInTheListAndWalksOnFromTopToBottom)
{
    fill({u"A"_s, u"B"_s}, {u"A"_s});
    EXPECT_EQ(walkedByTab(dialog, 7),
              "lvSelField cmdCheckAll cmdCheckNone cmdCheckInvert cmdOK cmdCancel txtSearchField");
}

TEST_F(ShowFields, MnemonicsCheckAndSearch)
{
    fill({u"A"_s, u"B"_s}, {u"A"_s});
    // A mnemonic shows the button pressed for a moment before it acts.
    const auto press = [this](Qt::Key letter, const QStringList &expected) {
        key(dialog, letter, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([&] { return checked() == expected; })) << static_cast<char>(letter);
    };
    press(Qt::Key_I, {u"B"_s});
    press(Qt::Key_A, {u"A"_s, u"B"_s});
    press(Qt::Key_N, {});
    key(dialog, Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(dialog.focusWidget(), &part(dialog, "txtSearchField"));
}

TEST_F(ShowFields, ChecksAllNoneAndTheOthers)
{
    fill({u"A"_s, u"B"_s, u"C"_s}, {u"B"_s});
    press(dialog, "cmdCheckInvert");
    EXPECT_EQ(checked(), (QStringList{u"A"_s, u"C"_s}));
    press(dialog, "cmdCheckAll");
    EXPECT_EQ(checked().size(), 3);
    EXPECT_FALSE(isEnabled("cmdCheckAll"));
    press(dialog, "cmdCheckNone");
    EXPECT_TRUE(checked().isEmpty());
    EXPECT_FALSE(isEnabled("cmdCheckNone"));
    EXPECT_TRUE(isEnabled("cmdCheckAll"));
}

TEST_F(ShowFields, TypingFindsAmongFiveHundredFieldsAndForgetsNoCheck)
{
    QStringList all;
    for (int i = 1; i <= 500; ++i)
        all.append(u"字段%1"_s.arg(i));
    fill(all, {u"字段7"_s});
    auto &search = part<QLineEdit>(dialog, "txtSearchField");
    compose(search, u"字段"_s);
    EXPECT_EQ(listed().size(), 500);
    QTest::keyClicks(&search, u"49"_s);
    EXPECT_EQ(listed().size(), 11); // 字段49, and 字段490 to 字段499
    press(dialog, "cmdCheckAll");
    search.clear();
    EXPECT_EQ(listed().size(), 500);
    EXPECT_EQ(checked().size(), 12);
    EXPECT_EQ(checked().constFirst(), u"字段7"_s);
}

TEST_F(ShowFields, EnterInTheSearchBoxGoesToTheFirstFieldFound)
{
    fill({u"Alpha"_s, u"Beta"_s, u"Gamma"_s}, {u"Alpha"_s});
    auto &search = part<QLineEdit>(dialog, "txtSearchField");
    search.setFocus();
    QTest::keyClicks(&search, u"gam"_s);
    QTest::keyClick(&search, Qt::Key_Return);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(dialog.focusWidget(), &list());
    key(dialog, Qt::Key_Space);
    EXPECT_EQ(checked(), (QStringList{u"Alpha"_s, u"Gamma"_s}));
}

TEST_F(ShowFields, AClickOnTheBoxTicks)
{
    fill({u"A"_s, u"B"_s});
    const QRect row = list().visualItemRect(list().topLevelItem(1));
    QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, QPoint(row.left() + 10, row.center().y()));
    EXPECT_EQ(checked(), QStringList{u"B"_s});
}

TEST_F(ShowFields, CanBeResizedAndItsPartsHaveNames)
{
    fill({u"A"_s});
    EXPECT_GT(dialog.maximumHeight(), dialog.height() * 2);
    EXPECT_FALSE(list().accessibleName().isEmpty());
    for (const char *name : {"GradualControl1", "GradualControl3", "picListViewBack", "Picture1"})
        EXPECT_TRUE(part(dialog, name).isVisible()) << name;
}
