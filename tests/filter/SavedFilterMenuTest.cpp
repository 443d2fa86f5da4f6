// Filters that are saved under names, by mouse and keys.
#include "BuilderFixture.h"

#include "support/MessageAnswers.h"
#include "support/WindowAnswers.h"

#include <QtWidgets/QMenu>
#include <QtWidgets/QToolButton>

using namespace KOVAVSFDataGridLib;
using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

struct SavedMenu : BuilderFixture
{
    SavedMenu()
    {
        builder->SetShelf({[this] { return kept; }, [this](const QString &text) { kept = text; }});
    }

    QMenu &menu() const { return part<QMenu>(dialog, "mnuSaved"); }
    // Opens the menu by the keyboard, as the button offers it, and chooses an entry of it or of a menu in it.
    void choose(const QString &caption, const char *inner = nullptr)
    {
        QMetaObject::invokeMethod(&menu(), "aboutToShow");
        const QMenu &asked = inner ? part<QMenu>(menu(), inner) : menu();
        for (QAction *action : asked.actions()) {
            if (action->text() == caption)
                return action->trigger();
        }
        ADD_FAILURE() << qUtf8Printable(caption);
    }
    QStringList entries(const char *inner = nullptr)
    {
        QMetaObject::invokeMethod(&menu(), "aboutToShow");
        QStringList texts;
        for (const QAction *action : (inner ? part<QMenu>(menu(), inner) : menu()).actions())
            texts.append(action->text());
        return texts;
    }
    static WindowAnswers::Answer typeName(const QString &name)
    {
        return [name](QDialog &asked) {
            auto *edit = asked.findChild<QLineEdit *>();
            ASSERT_TRUE(edit && edit->hasSelectedText());
            compose(*edit, name);
            QTest::keyClick(edit, Qt::Key_Return);
        };
    }
    void save(const QString &name)
    {
        WindowAnswers names({typeName(name)});
        choose(u"保存当前条件(&S)…"_s);
    }

    QString kept;
};

struct ShownMenu : BuilderFixture
{
};

} // namespace

TEST_F(SavedMenu, AFilterIsSavedAndRecalledByItsName)
{
    fillRow(1, u"下单日期"_s, u"等于"_s, u"本月"_s);
    save(u"本月的"_s);
    EXPECT_EQ(entries().first(), u"本月的"_s);
    type("txtValue1", u"2024"_s);
    const BuiltFilter saved = std::get<SavedFilters>(SavedFilters::fromText(kept)).named().at(0).filter;
    MessageAnswers answers({QMessageBox::Yes});
    choose(u"本月的"_s);
    EXPECT_EQ(answers.texts(), QStringList{u"放弃已输入的条件吗？"_s});
    EXPECT_EQ(text("txtValue1").text(), u"本月"_s) << "it stays relative";
    EXPECT_EQ(builder->State(), saved);
    EXPECT_FALSE(builder->IsChanged());
}

// Conditions that another saved filter keeps are not joined to it.
TEST_F(SavedMenu, ARecalledFilterTakesThePlaceOfAllConditions)
{
    kept =
        uR"({"filters":1,"named":[{"name":"甲","kept":["编号 < 50 OR 编号 > 60"]},)"
        R"({"name":"乙","condition":"编号 = 3"},{"name":"坏","kept":["编号 < 5) OR (1=1","编号 > 2 -- x"]},)"
        R"({"name":"旧","rows":[{"field":"没有","operator":"equals","value":"1"}],"kept":["编号 > 9"]}]})"_s;
    choose(u"甲"_s);
    EXPECT_EQ(builder->State().kept, QStringList(u"编号 < 50 OR 编号 > 60"_s));
    choose(u"乙"_s);
    EXPECT_EQ(builder->State().kept, QStringList());
    EXPECT_EQ(answer(), "编号 = 3");
    choose(u"坏"_s);
    EXPECT_EQ(answer(), "编号 = 3") << "a condition that ends within others' brackets changes nothing";
    EXPECT_EQ(part<QLabel>(dialog, "lblNotice").text(), u"括号不配对。"_s);
    choose(u"旧"_s);
    EXPECT_EQ(answer(), "编号 = 3") << "what can't be recalled changes nothing";
    EXPECT_TRUE(part<QLabel>(dialog, "lblNotice").text().contains(u"没有"_s));
}

TEST_F(SavedMenu, WhatIsTypedStaysUnlessTheUserGivesItUp)
{
    fillRow(1, u"编号"_s, u"等于"_s, u"1"_s);
    save(u"一"_s);
    type("txtValue1", u"2"_s);
    MessageAnswers answers({QMessageBox::No});
    choose(u"一"_s);
    EXPECT_EQ(text("txtValue1").text(), u"2"_s);
}

TEST_F(SavedMenu, AConditionTypedAsSqlIsSavedToo)
{
    type("txtCondition", u"编号 > 1"_s);
    save(u"大于一"_s);
    press(dialog, "cmdBackToRows");
    MessageAnswers answers({QMessageBox::Yes});
    choose(u"大于一"_s);
    EXPECT_EQ(answer(), "编号 > 1");
}

TEST_F(SavedMenu, AnIncompleteConditionIsMarkedInsteadOfSaved)
{
    choose(u"保存当前条件(&S)…"_s);
    EXPECT_EQ(fault("lblFault1"), "请输入值。");
    EXPECT_EQ(kept, QString());
}

TEST_F(SavedMenu, AFilterIsReplacedOnlyWhenTheUserSaysSo)
{
    fillRow(1, u"编号"_s, u"等于"_s, u"1"_s);
    save(u"一"_s);
    const QString before = kept;
    type("txtValue1", u"2"_s);
    {
        MessageAnswers answers({QMessageBox::No});
        save(u"一"_s);
        EXPECT_EQ(answers.texts(), QStringList{u"已有名为“一”的筛选，替换它吗？"_s});
        EXPECT_EQ(kept, before);
    }
    MessageAnswers answers({QMessageBox::Yes});
    save(u"一"_s);
    EXPECT_NE(kept, before);
    EXPECT_EQ(entries().count(u"一"_s), 1);
}

TEST_F(SavedMenu, AFilterIsRenamedAndDeleted)
{
    fillRow(1, u"编号"_s, u"等于"_s, u"1"_s);
    save(u"一"_s);
    {
        WindowAnswers names({typeName(u"壹"_s)});
        choose(u"一"_s, "mnuRename");
    }
    EXPECT_EQ(entries("mnuDelete"), QStringList{u"壹"_s});
    {
        MessageAnswers answers({QMessageBox::No});
        choose(u"壹"_s, "mnuDelete");
        EXPECT_EQ(answers.texts(), QStringList{u"确实要删除筛选“壹”吗？"_s});
        EXPECT_EQ(entries().first(), u"壹"_s);
    }
    MessageAnswers answers({QMessageBox::Yes});
    choose(u"壹"_s, "mnuDelete");
    EXPECT_EQ(entries("mnuDelete"), QStringList());
}

TEST_F(SavedMenu, AnEmptyNameAndEscSaveNothing)
{
    fillRow(1, u"编号"_s, u"等于"_s, u"1"_s);
    save(u"  "_s);
    EXPECT_EQ(kept, QString());
    WindowAnswers names({[](QDialog &asked) { QTest::keyClick(&asked, Qt::Key_Escape); }});
    choose(u"保存当前条件(&S)…"_s);
    EXPECT_EQ(kept, QString());
}

TEST_F(SavedMenu, TheRecentOnesAreCalledByTheirSentence)
{
    SavedFilters filters;
    filters.noteUsed({.rows = {{.field = u"编号"_s, .op = FilterOperator::Greater, .value = u"1"_s}}});
    filters.noteUsed({.condition = u"编号 & 1 > 0"_s});
    kept = filters.toText();
    EXPECT_EQ(entries("mnuRecent"), QStringList({u"编号 && 1 > 0"_s, u"【编号】大于 1"_s}));
    choose(u"【编号】大于 1"_s, "mnuRecent");
    EXPECT_EQ(answer(), "(编号 > 1 AND 编号 < '')");
}

TEST_F(SavedMenu, AFilterOfAFieldThatIsGoneLeavesTheRowsAsTheyAre)
{
    SavedFilters filters;
    filters.keep(u"旧的"_s, {.rows = {{.field = u"没有"_s, .value = u"1"_s}}});
    kept = filters.toText();
    choose(u"旧的"_s);
    EXPECT_EQ(fault("lblNotice"), "这里没有该筛选用到的字段“没有”，或者不能这样比较它。");
    EXPECT_EQ(combo("cmbField1").currentText(), u"编号"_s);
}

TEST_F(SavedMenu, TheButtonIsReachedByTheKeyboard)
{
    auto &button = part<QToolButton>(dialog, "cmdSaved");
    EXPECT_TRUE(button.isVisible());
    EXPECT_EQ(button.focusPolicy() & Qt::TabFocus, Qt::TabFocus);
}

TEST_F(ShownMenu, IsNotThereWhereNothingIsKept)
{
    EXPECT_FALSE(part<QToolButton>(dialog, "cmdSaved").isVisible());
}
