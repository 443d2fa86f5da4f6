// The conditions of the builder as groups inside groups, by mouse and keys.
#include "BuilderFixture.h"

#include <QtWidgets/QCheckBox>

using namespace KOVAVSFDataGridLib;
using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

struct Groups : BuilderFixture
{
    Groups()
    {
        press(dialog, "cmdAddRow");
        press(dialog, "cmdAddRow");
        fillRow(1, u"编号"_s, u"等于"_s, u"1"_s);
        fillRow(2, u"编号"_s, u"等于"_s, u"2"_s);
        fillRow(3, u"编号"_s, u"等于"_s, u"3"_s);
        dialog.resize(900, 600);
    }

    void showGroups(bool on) const
    {
        auto &box = part<QCheckBox>(dialog, "chkGroups");
        if (box.isChecked() != on)
            QTest::keyClick(&box, Qt::Key_Space);
    }
    std::string words() const { return part<QLabel>(dialog, "lblSentence").text().toStdString(); }
    QWidget &grip(const char *name) const { return part(dialog, name); }
    void drag(const char *name, const QWidget &to, double height) const
    {
        QTest::qWait(0); // lets the layout update
        QWidget &from = grip(name);
        const QPoint place = to.mapTo(&dialog, QPoint(5, static_cast<int>(to.height() * height)));
        const QPoint target = from.mapFrom(&dialog, place);
        QTest::mousePress(&from, Qt::LeftButton);
        QTest::mouseMove(&from, target);
        EXPECT_TRUE(part(dialog, "fraDrop").isVisible());
        QTest::mouseRelease(&from, Qt::LeftButton, {}, target);
        EXPECT_FALSE(part(dialog, "fraDrop").isVisible());
    }
};

} // namespace

TEST_F(Groups, MixedJoinsSayHowTheyAreReadAndOfferBrackets)
{
    EXPECT_FALSE(part(dialog, "cmdAddBrackets").isVisible());
    choose("cmbJoin1", u"或者"_s);
    EXPECT_EQ(shown(), "(编号 = 1 OR 编号 = 2 AND 编号 = 3)");
    EXPECT_EQ(words(), "【编号】等于 1，或者（【编号】等于 2，并且【编号】等于 3）。");
    ASSERT_TRUE(part(dialog, "cmdAddBrackets").isVisible());
    press(dialog, "cmdAddBrackets");
    EXPECT_EQ(combo("cmbOpen2").currentText(), u"("_s);
    EXPECT_EQ(answer(), "(编号 = 1 OR (编号 = 2 AND 编号 = 3))");
    EXPECT_FALSE(part(dialog, "cmdAddBrackets").isVisible());
}

TEST_F(Groups, AreTheBracketsOfTheCompactView)
{
    choose("cmbJoin1", u"或者"_s);
    showGroups(true);
    EXPECT_TRUE(combo("cmbGroup1").isVisible());
    EXPECT_EQ(combo("cmbGroup1").currentText(), u"或：符合任何一个"_s);
    EXPECT_EQ(combo("cmbGroup2").currentText(), u"且：全部符合"_s);
    EXPECT_FALSE(exists("cmbGroup3"));
    EXPECT_FALSE(combo("cmbJoin1").isVisible());
    EXPECT_FALSE(combo("cmbOpen1").isVisible());
    EXPECT_EQ(answer(), "(编号 = 1 OR (编号 = 2 AND 编号 = 3))");
    showGroups(false);
    EXPECT_FALSE(combo("cmbGroup1").isVisible());
    EXPECT_TRUE(combo("cmbJoin1").isVisible());
    EXPECT_EQ(combo("cmbOpen2").currentText(), u"("_s);
    EXPECT_EQ(combo("cmbClose3").currentText(), u")"_s);
    EXPECT_EQ(answer(), "(编号 = 1 OR (编号 = 2 AND 编号 = 3))");
}

TEST_F(Groups, AreChosenToBeMetAllAnyOrNone)
{
    showGroups(true);
    EXPECT_EQ(answer(), "编号 = 1 AND 编号 = 2 AND 编号 = 3");
    choose("cmbGroup1", u"或：符合任何一个"_s);
    EXPECT_EQ(answer(), "(编号 = 1 OR 编号 = 2 OR 编号 = 3)");
    choose("cmbGroup1", u"都不：一个也不符合"_s);
    EXPECT_EQ(words(), "并非（【编号】等于 1，或者【编号】等于 2，或者【编号】等于 3）。");
    EXPECT_EQ(answer(), "((编号 <> 1 OR 编号 IS NULL) AND (编号 <> 2 OR 编号 IS NULL) AND "
                        "(编号 <> 3 OR 编号 IS NULL))");
    showGroups(false);
    EXPECT_EQ(combo("cmbOpen1").currentText(), u"非("_s);
    EXPECT_EQ(combo("cmbJoin1").currentText(), u"或者"_s);
}

TEST_F(Groups, TheArrowKeysMoveAConditionIntoAGroupAndOut)
{
    showGroups(true);
    press(dialog, "cmdEnclose2");
    choose("cmbGroup2", u"或：符合任何一个"_s);
    EXPECT_EQ(answer(), "编号 = 1 AND (编号 = 2) AND 编号 = 3");
    grip("grpMoveRow3").setFocus();
    key(dialog, Qt::Key_Up);
    EXPECT_EQ(answer(), "编号 = 1 AND (编号 = 2 OR 编号 = 3)");
    key(dialog, Qt::Key_Up);
    EXPECT_EQ(answer(), "编号 = 1 AND (编号 = 3 OR 编号 = 2)") << "the keyboard went along";
    EXPECT_EQ(text("txtValue2").text(), u"3"_s);
    key(dialog, Qt::Key_Up);
    EXPECT_EQ(answer(), "编号 = 1 AND 编号 = 3 AND (编号 = 2)");
    grip("grpMove2").setFocus();
    key(dialog, Qt::Key_Up);
    key(dialog, Qt::Key_Up);
    EXPECT_EQ(answer(), "(编号 = 2) AND 编号 = 1 AND 编号 = 3");
    press(dialog, "cmdDissolve2");
    EXPECT_EQ(answer(), "编号 = 2 AND 编号 = 1 AND 编号 = 3");
}

TEST_F(Groups, TheMouseDragsConditions)
{
    showGroups(true);
    press(dialog, "cmdEnclose3");
    drag("grpMoveRow1", part(dialog, "cmbGroup2"), 0.9);
    EXPECT_EQ(answer(), "编号 = 2 AND (编号 = 1 OR 编号 = 3)");
    drag("grpMove2", part(dialog, "cmbField1"), 0.1);
    EXPECT_EQ(answer(), "(编号 = 1 OR 编号 = 3) AND 编号 = 2");
    QTest::mouseClick(&grip("grpMoveRow1"), Qt::LeftButton);
    EXPECT_EQ(answer(), "(编号 = 1 OR 编号 = 3) AND 编号 = 2") << "a click moves nothing";
}

TEST_F(Groups, ConditionsAreAddedToAGroupAndDeleted)
{
    showGroups(true);
    press(dialog, "cmdEnclose1");
    press(dialog, "cmdAddToGroup2");
    EXPECT_EQ(dialog.focusWidget(), &combo("cmbField2"));
    fillRow(2, u"编号"_s, u"等于"_s, u"9"_s);
    EXPECT_EQ(answer(), "(编号 = 1 OR 编号 = 9) AND 编号 = 2 AND 编号 = 3");
    press(dialog, "cmdDeleteRow2");
    press(dialog, "cmdDeleteRow1");
    EXPECT_EQ(answer(), "编号 = 2 AND 编号 = 3");
    EXPECT_FALSE(exists("cmbGroup2"));
}

TEST_F(Groups, BracketsThatDontMatchAreMarkedInstead)
{
    choose("cmbOpen1", u"("_s);
    showGroups(true);
    EXPECT_FALSE(part<QCheckBox>(dialog, "chkGroups").isChecked());
    EXPECT_EQ(fault("lblFault1"), "括号不配对。");
    EXPECT_TRUE(combo("cmbJoin1").isVisible());
}

TEST_F(Groups, SurviveBeingTakenOutAndPutIn)
{
    showGroups(true);
    press(dialog, "cmdEnclose2");
    choose("cmbGroup2", u"都不：一个也不符合"_s);
    press(dialog, "cmdEnclose2");
    press(dialog, "cmdEnclose2");
    press(dialog, "cmdEnclose2");
    const std::string before = answer();
    const BuiltFilter state = builder->State();
    type("txtValue1", u"7"_s);
    builder->PutState(state);
    EXPECT_EQ(answer(), before);
    EXPECT_TRUE(combo("cmbGroup5").isVisible());
    showGroups(false);
    EXPECT_EQ(answer(), before);
    EXPECT_EQ(builder->State().rows.at(1).opens, 4);
}

TEST_F(Groups, TheKeyboardReachesEveryPartInTheOrderInWhichItIsSeen)
{
    showGroups(true);
    press(dialog, "cmdEnclose2");
    part(dialog, "cmbGroup1").setFocus();
    EXPECT_EQ(walkedByTab(dialog, 12),
              "cmbGroup1 cmdAddToGroup1 grpMoveRow1 chkNot1 cmbField1 cmbOperator1 "
              "txtValue1 cmdEnclose1 cmdDeleteRow1 grpMove2 cmbGroup2 cmdAddToGroup2");
    for (const auto *widget : dialog.findChildren<QWidget *>()) {
        if (widget->isVisible() && (widget->focusPolicy() & Qt::TabFocus) != 0) {
            const auto *button = qobject_cast<const QAbstractButton *>(widget);
            EXPECT_FALSE(widget->accessibleName().contains(u'%')) << qPrintable(widget->accessibleName());
            EXPECT_TRUE(!widget->accessibleName().isEmpty() || (button && !button->text().isEmpty()))
                << qUtf8Printable(widget->objectName());
        }
    }
}
