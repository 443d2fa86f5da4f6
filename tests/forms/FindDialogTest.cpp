#include "forms/FindDialog.h"

#include "query/fields/colDataFields.h"
#include "support/Dialogs.h"

#include <QtGui/QClipboard>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>
#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

const QString Hint = u"输入查询内容（以空格分隔）"_s;

struct Find : testing::Test
{
    Find()
    {
        fields.AddFieldsByCol({u"编号"_s, u"名称"_s});
        EXPECT_TRUE(dialog.InitFrm(&fields));
        present(dialog);
    }
    QComboBox &input() const { return part<QComboBox>(dialog, "InputCombo1"); }
    QComboBox &field() const { return part<QComboBox>(dialog, "FieldCombo1"); }
    bool isEnabled(const char *name) const { return part(dialog, name).isEnabled(); }
    void expectHint(bool isShown) const
    {
        EXPECT_EQ(input().currentText() == Hint, isShown);
        EXPECT_EQ(isEnabled("FindBtn"), !isShown);
        EXPECT_EQ(isEnabled("FieldCombo1"), !isShown);
    }
    QColor inputColour() const { return input().lineEdit()->palette().color(QPalette::Text); }

    colDataFields fields;
    FindDialog dialog;
};

} // namespace

TEST_F(Find, OffersAllFieldsFirstThenEachInOrder)
{
    ASSERT_EQ(field().count(), 3);
    EXPECT_EQ(field().currentText(), u"全部"_s);
    EXPECT_EQ(field().itemText(1), u"编号"_s);
    EXPECT_EQ(field().itemText(2), u"名称"_s);
}

TEST(FindDialogFields, AMissingOrEmptyCatalogueIsRefusedAndLeavesTheComboEmpty)
{
    FindDialog dialog;
    colDataFields none;
    EXPECT_FALSE(dialog.InitFrm(nullptr));
    EXPECT_FALSE(dialog.InitFrm(&none));
    EXPECT_EQ(part<QComboBox>(dialog, "FieldCombo1").count(), 0);
}

TEST(FindDialogFields, WithoutFieldsTheTextIsKeptButTheDialogStaysOpen)
{
    FindDialog dialog;
    present(dialog);
    QTest::keyClicks(dialog.focusWidget(), u"abc"_s);
    press(dialog, "FindBtn");
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(dialog.strFindText(), u"abc"_s);
    EXPECT_TRUE(dialog.strFieldName().isEmpty());
}

TEST_F(Find, BeginsWithAHintAndNothingToPress)
{
    expectHint(true);
    EXPECT_TRUE(dialog.strFindText().isEmpty());
    EXPECT_FALSE(input().lineEdit()->hasSelectedText());
    EXPECT_EQ(inputColour(), dialog.palette().color(QPalette::PlaceholderText));
}

TEST_F(Find, TheFirstKeyTakesTheHintsPlace)
{
    QTest::keyClicks(dialog.focusWidget(), u"ab"_s);
    EXPECT_EQ(input().currentText(), u"ab"_s);
    expectHint(false);
    EXPECT_EQ(inputColour(), dialog.palette().color(QPalette::ButtonText));
}

TEST_F(Find, KeysSentToTheBoxItselfAreHandledToo)
{
    QTest::keyClick(&input(), Qt::Key_A);
    EXPECT_EQ(input().currentText(), u"a"_s);
    expectHint(false);
}

TEST_F(Find, AnInputMethodTakesTheHintsPlace)
{
    compose(*input().lineEdit(), u"北京"_s);
    EXPECT_EQ(input().currentText(), u"北京"_s);
    expectHint(false);
}

TEST_F(Find, WhatIsPastedByTheMouseStaysWhenTheHintGoes)
{
    QGuiApplication::clipboard()->setText(u"上海"_s);
    input().lineEdit()->paste();
    EXPECT_EQ(input().currentText(), u"上海"_s);
    expectHint(false);
}

TEST_F(Find, NothingIsWrittenIntoTheMiddleOfTheHint)
{
    QTest::mouseClick(input().lineEdit(), Qt::LeftButton, {}, QPoint(60, 8));
    EXPECT_EQ(input().lineEdit()->cursorPosition(), 0);
    input().lineEdit()->insert(u"广州"_s);
    EXPECT_EQ(input().currentText(), u"广州"_s);
}

TEST_F(Find, ModifiersAndTabLeaveTheHint)
{
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Shift);
    key(dialog, Qt::Key_Tab);
    expectHint(true);
}

TEST_F(Find, EnterCancelsWhileTheHintIsShown)
{
    key(dialog, Qt::Key_Return);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
    EXPECT_TRUE(dialog.strFindText().isEmpty());
}

TEST_F(Find, EnterFindsOnceSomethingIsTyped)
{
    compose(*input().lineEdit(), u" a  b\u3000c "_s);
    key(dialog, Qt::Key_Return);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.strFindText(), u"a%b%c"_s);
    EXPECT_EQ(dialog.strFieldName(), u"全部"_s);
    EXPECT_FALSE(dialog.bIsAppointField());
}

TEST_F(Find, EscAndCancelLeaveNoResult)
{
    QTest::keyClicks(dialog.focusWidget(), u"a"_s);
    key(dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
    present(dialog);
    press(dialog, "CancelBtn");
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_TRUE(dialog.strFindText().isEmpty());
}

TEST_F(Find, AltF4LeavesNoResult)
{
    QTest::keyClicks(dialog.focusWidget(), u"a"_s);
    closeFromTheFrame(dialog);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
    EXPECT_TRUE(dialog.strFindText().isEmpty());
}

TEST_F(Find, MnemonicsAndTheTabKeyReachEveryPart)
{
    QTest::keyClicks(dialog.focusWidget(), u"a"_s);
    EXPECT_EQ(walkedByTab(dialog, 4), "InputCombo1 FieldCombo1 FindBtn CancelBtn");
    key(dialog, Qt::Key_N, Qt::AltModifier);
    EXPECT_EQ(dialog.focusWidget(), &field());
    key(dialog, Qt::Key_W, Qt::AltModifier);
    EXPECT_EQ(dialog.focusWidget(), &input());
    key(dialog, Qt::Key_F, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !dialog.isVisible(); }));
    EXPECT_EQ(dialog.strFindText(), u"a"_s);
}

TEST_F(Find, ItsPartsHaveNames)
{
    EXPECT_FALSE(input().accessibleName().isEmpty());
    EXPECT_FALSE(field().accessibleName().isEmpty());
    EXPECT_EQ(field().toolTip(), u"指定的字段名称（默认：全部）"_s);
}

TEST_F(Find, OnlyBlanksDoNothing)
{
    QTest::keyClicks(dialog.focusWidget(), u"   "_s);
    press(dialog, "FindBtn");
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_TRUE(dialog.strFindText().isEmpty());
}

TEST_F(Find, TwoFullWidthBlanksBecomeOneSeparator)
{
    compose(*input().lineEdit(), u"a\u3000\u3000b"_s);
    press(dialog, "FindBtn");
    EXPECT_EQ(dialog.strFindText(), u"a%b"_s);
}

TEST_F(Find, AChosenFieldIsAppointed)
{
    QTest::keyClicks(dialog.focusWidget(), u"x"_s);
    field().setFocus();
    key(dialog, Qt::Key_Down);
    key(dialog, Qt::Key_Down);
    press(dialog, "FindBtn");
    EXPECT_EQ(dialog.strFieldName(), u"名称"_s);
    EXPECT_TRUE(dialog.bIsAppointField());
}

TEST_F(Find, TheFieldNameCanBeWritten)
{
    dialog.PutStrFieldName(u"名称"_s);
    EXPECT_EQ(dialog.strFieldName(), u"名称"_s);
    EXPECT_FALSE(dialog.bIsAppointField());
}

TEST_F(Find, OffersTheWordsSearchedForLastNewestFirst)
{
    QStringList known;
    for (const QString &words : {u"绿茶 杭州"_s, u"大米"_s, u"绿茶 杭州"_s}) {
        FindDialog earlier;
        earlier.SetEarlierWords(known);
        EXPECT_TRUE(earlier.InitFrm(&fields));
        present(earlier);
        auto &edit = *part<QComboBox>(earlier, "InputCombo1").lineEdit();
        QTest::keyClicks(&edit, u"x"_s);
        edit.clear();
        compose(edit, words);
        press(earlier, "FindBtn");
        known = earlier.EarlierWords();
    }
    FindDialog next;
    next.SetEarlierWords(known);
    EXPECT_TRUE(next.InitFrm(&fields));
    present(next);
    auto &words = part<QComboBox>(next, "InputCombo1");
    EXPECT_EQ(words.currentText(), Hint);
    EXPECT_EQ(words.itemText(0), u"绿茶 杭州"_s);
    EXPECT_EQ(words.itemText(1), u"大米"_s);
    EXPECT_EQ(words.findText(u"绿茶 杭州"_s, Qt::MatchExactly), 0);
    // What is typed is not completed from them.
    compose(*words.lineEdit(), u"大"_s);
    EXPECT_EQ(words.currentText(), u"大"_s);
    words.lineEdit()->clear();
    QTest::keyClick(&words, Qt::Key_Down);
    EXPECT_EQ(words.currentText(), u"绿茶 杭州"_s);
    press(next, "FindBtn");
    EXPECT_EQ(next.strFindText(), u"绿茶%杭州"_s);
}
