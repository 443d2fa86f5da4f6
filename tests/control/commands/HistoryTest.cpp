// Going back and forward over the statements, and the list of them.
#include "Shop.h"

#include "support/Dialogs.h"

#include <QtCore/QRegularExpression>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QMenu>
#include <QtWidgets/QToolButton>

#include <functional>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

class History : public Shop
{
protected:
    void narrow(const QString &words)
    {
        WindowAnswers dialogs({[&](QDialog &dialog) { find(dialog, words, u"名称"_s); }});
        click(u"QuickFilter"_s);
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::AltModifier)
    {
        grid.activateWindow(); // a dialog may have been there
        QCoreApplication::processEvents();
        table->setFocus();
        QTest::keyClick(table, key, modifiers);
    }
    // 12, then 6, then 3 records: all, with "茶", and of these with "红".
    void narrowTwice()
    {
        ASSERT_TRUE(load());
        narrow(u"茶"_s);
        narrow(u"井"_s);
    }
    QMenu *openList()
    {
        press(Qt::Key_H, Qt::ControlModifier);
        EXPECT_TRUE(menu->isVisible());
        return menu;
    }
    // The records of each line, the newest first, "*" before what is shown.
    QStringList listed()
    {
        QStringList lines;
        for (const QAction *action : openList()->actions()) {
            if (!action->data().isValid()) // no step
                continue;
            static const QRegularExpression note(u"\t(\\d+) 条  \\d\\d:\\d\\d:\\d\\d$"_s);
            lines.append((action->isChecked() ? u"*"_s : QString()) + note.match(action->text()).captured(1));
        }
        menu->hide();
        return lines;
    }
    void chooseLine(int line)
    {
        openList();
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(menu->actions().at(line)).center());
    }

    QMenu *menu = grid.findChild<QMenu *>(u"HistoryMenu"_s);
    ExpectedWarning noPopup{u"This plugin does not support"_s};
};

// Ticks the fields by their place in the dialog, where several can have one name.
void tickWhere(QDialog &dialog, const std::function<bool(int)> &isWanted)
{
    auto &view = part<QAbstractItemView>(dialog, "lvSelField");
    for (int row = 0; row < view.model()->rowCount(); ++row) {
        const QModelIndex item = view.model()->index(row, 0);
        if ((item.data(Qt::CheckStateRole).toInt() == Qt::Checked) == isWanted(row))
            continue;
        view.setFocus();
        view.setCurrentIndex(item);
        QTest::keyClick(&view, Qt::Key_Space);
    }
    press(dialog, "cmdOK");
}

} // namespace

TEST_F(History, ForwardGoesWhereTheStepBackCameFrom)
{
    narrowTwice();
    const QString latest = statement();
    ASSERT_EQ(rows(), 1);
    press(Qt::Key_Left);
    press(Qt::Key_Left);
    EXPECT_EQ(rows(), records);
    press(Qt::Key_Right);
    EXPECT_EQ(rows(), 6);
    press(Qt::Key_Right);
    EXPECT_EQ(rows(), 1);
    EXPECT_EQ(statement(), latest);
    EXPECT_EQ(grid.property("SQLFilter").toString().simplified(), latest.simplified());
    press(Qt::Key_Right);
    EXPECT_EQ(rows(), 1) << "there is nothing ahead any more";
    press(Qt::Key_Left);
    EXPECT_EQ(rows(), 6) << "the history is as it was";
    press(Qt::Key_Left);
    EXPECT_EQ(rows(), records);
}

TEST_F(History, TheListEndsWithForward)
{
    narrowTwice();
    const auto forward = [this] { return openList()->actions().constLast(); };
    EXPECT_TRUE(forward()->text().startsWith(u"前进"_s));
    EXPECT_FALSE(menu->actions().constLast()->isEnabled());
    menu->hide();
    press(Qt::Key_Left);
    ASSERT_EQ(rows(), 6);
    ASSERT_TRUE(forward()->isEnabled());
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(menu->actions().constLast()).center());
    EXPECT_EQ(rows(), 1);
}

TEST_F(History, ForwardIsLeftOutOnceSomethingNewIsDone)
{
    narrowTwice();
    const QAction *forward = grid.findChild<QAction *>(u"PopMnuDataAction30"_s);
    EXPECT_FALSE(forward->isEnabled());
    press(Qt::Key_Left);
    EXPECT_TRUE(forward->isEnabled());
    narrow(u"花"_s);
    ASSERT_EQ(rows(), 1);
    EXPECT_FALSE(forward->isEnabled());
    press(Qt::Key_Right);
    EXPECT_EQ(texts(u"名称"_s), QStringList(u"花茶"_s));
    EXPECT_EQ(listed(), (QStringList{u"*1"_s, u"6"_s, u"12"_s}));
    ASSERT_TRUE(load());
    EXPECT_FALSE(forward->isEnabled());
    EXPECT_EQ(listed(), QStringList(u"*12"_s));
}

TEST_F(History, ForwardShowsTheFieldsThatWereShown)
{
    ASSERT_TRUE(load());
    click(u"Part"_s);
    narrow(u"茶"_s);
    ASSERT_EQ(columns(), PartColumns);
    click(u"ToOrigin"_s);
    EXPECT_EQ(columns(), AllColumns);
    press(Qt::Key_Right);
    EXPECT_EQ(columns(), PartColumns);
    EXPECT_TRUE(isPressed(u"Part"_s));
    EXPECT_EQ(rows(), records);
    press(Qt::Key_Right);
    EXPECT_EQ(columns(), PartColumns);
    EXPECT_EQ(rows(), 6);
}

// Its entry has no part statement of its own.
TEST_F(History, AStepBackToAFilterOfTheFirstStatementShowsTheFieldsThatItShowed)
{
    ASSERT_TRUE(load(statementOfAll(), {}));
    WindowAnswers dialogs({[](QDialog &dialog) {
                               tick(dialog, {u"ID"_s, u"名称"_s});
                           },
                           [](QDialog &dialog) { filter(dialog, u"ID < 5"_s); },
                           [](QDialog &dialog) { tick(dialog, {u"名称"_s}); }});
    click(u"SelField"_s);
    click(u"Filter"_s);
    EXPECT_EQ(columns(), PartColumns);
    click(u"SelField"_s);
    EXPECT_EQ(columns(), QStringList(u"名称"_s));
    click(u"ToPreview"_s);
    EXPECT_EQ(columns(), PartColumns);
    EXPECT_EQ(rows(), 4);
    press(Qt::Key_Right);
    EXPECT_EQ(columns(), QStringList(u"名称"_s));
}

// The first of them alone is found by the name.
TEST_F(History, OfTwoFieldsOfANameTheChosenOneIsShownThroughAFilter)
{
    const auto tickOnly = [](int field) {
        return [field](QDialog &dialog) { tickWhere(dialog, [=](int row) { return row == field; }); };
    };
    ASSERT_TRUE(load(u"SELECT a.ID, b.ID, a.名称 FROM 商品 a JOIN 商品 b ON b.ID = a.ID + 1"_s, {}));
    WindowAnswers dialogs(
        {tickOnly(1), tickOnly(0), tickOnly(1), [](QDialog &dialog) { filter(dialog, u"a.ID < 3"_s); }});
    click(u"SelField"_s);
    EXPECT_EQ(texts(u"ID"_s).first(), u"2"_s);
    click(u"SelField"_s);
    EXPECT_EQ(texts(u"ID"_s).first(), u"1"_s) << "the other one is read";
    click(u"SelField"_s);
    click(u"Filter"_s);
    EXPECT_EQ(rows(), 2);
    EXPECT_EQ(columns(), QStringList(u"ID"_s));
    EXPECT_TRUE(table->isColumnHidden(0));
    EXPECT_FALSE(table->isColumnHidden(1));
}

TEST_F(History, OfEqualNamesUnderStarsTheOneLeftOutStaysHiddenThroughAFilter)
{
    ASSERT_TRUE(load(u"SELECT a.*, b.*, c.* FROM 商品 a LEFT JOIN 商品 b ON b.ID = a.ID + 1 "
                     "LEFT JOIN 订单 c ON c.商品 = a.ID"_s,
                     {}));
    const QStringList all = columns();
    const int leftOut = static_cast<int>(all.indexOf(u"名称"_s));
    ASSERT_EQ(all.count(u"名称"_s), 2);
    WindowAnswers dialogs(
        {[&](QDialog &dialog) { tickWhere(dialog, [&](int row) { return row != leftOut; }); },
         [](QDialog &dialog) { filter(dialog, u"a.ID < 3"_s); }});
    click(u"SelField"_s);
    click(u"Filter"_s);
    EXPECT_EQ(rows(), 2);
    ASSERT_EQ(table->model()->columnCount(), all.size());
    for (int column = 0; column < all.size(); ++column)
        EXPECT_EQ(table->isColumnHidden(column), column == leftOut) << column;
}

TEST_F(History, TheOriginLeavesAllStatementsAhead)
{
    narrowTwice();
    click(u"ToOrigin"_s);
    EXPECT_EQ(listed(), (QStringList{u"1"_s, u"6"_s, u"*12"_s}));
    press(Qt::Key_Right);
    EXPECT_EQ(listed(), (QStringList{u"1"_s, u"*6"_s, u"12"_s}));
}

TEST_F(History, TheListHasTheNewestFirstWithItsRecordsAndLeadsToEach)
{
    narrowTwice();
    EXPECT_EQ(listed(), (QStringList{u"*1"_s, u"6"_s, u"12"_s}));
    chooseLine(2);
    EXPECT_EQ(rows(), records);
    EXPECT_EQ(listed(), (QStringList{u"1"_s, u"6"_s, u"*12"_s}));
    chooseLine(0);
    EXPECT_EQ(rows(), 1);
    EXPECT_EQ(listed(), (QStringList{u"*1"_s, u"6"_s, u"12"_s}));
    chooseLine(0);
    EXPECT_EQ(rows(), 1) << "what is shown stays";
    press(Qt::Key_Left);
    EXPECT_EQ(rows(), 6) << "no step was left out";
}

TEST_F(History, TheListDropsDownBesideTheButtonThatGoesBack)
{
    narrowTwice();
    auto *back = qobject_cast<QToolButton *>(toolbar->widgetForAction(button(u"ToPreview"_s)));
    ASSERT_TRUE(back);
    EXPECT_EQ(back->menu(), menu);
    EXPECT_FALSE(button(u"ToPreview"_s)->menu()) << "the action itself is a plain one";
    click(u"ToPreview"_s);
    EXPECT_EQ(rows(), 6) << "the button still goes back";
    openList();
    EXPECT_EQ(menu->pos().y(), back->mapToGlobal(QPoint(0, back->height())).y());
    menu->hide();
}

TEST_F(History, AStepThatFailsLeavesEverythingAsItWas)
{
    narrowTwice();
    press(Qt::Key_Left);
    database.run(u"ALTER TABLE 商品 RENAME TO 别处"_s);
    messages.answerNext(QMessageBox::Ok);
    press(Qt::Key_Right);
    EXPECT_EQ(rows(), 6);
    messages.answerNext(QMessageBox::Ok);
    chooseLine(2);
    EXPECT_EQ(rows(), 6);
    database.run(u"ALTER TABLE 别处 RENAME TO 商品"_s);
    EXPECT_EQ(listed(), (QStringList{u"1"_s, u"*6"_s, u"12"_s}));
    press(Qt::Key_Right);
    EXPECT_EQ(rows(), 1);
}

TEST_F(History, IsEmptyBeforeALoad)
{
    menu->popup({});
    ASSERT_EQ(menu->actions().size(), 1);
    EXPECT_FALSE(menu->actions().constFirst()->isEnabled());
    menu->hide();
}

TEST_F(History, AnUnsavedRecordIsSavedFirst)
{
    narrowTwice();
    click(u"SingleRecord"_s);
    list->setCurrentIndex(list->model()->index(listedRow(u"城市"_s), 1));
    list->setFocus();
    QTest::keyClick(list, Qt::Key_F2);
    edit->clear();
    QTest::keyClicks(edit, u"Beijing"_s);
    QTest::keyClick(edit, Qt::Key_Return);
    chooseLine(2);
    EXPECT_FALSE(isSingleRecordShown());
    EXPECT_EQ(texts(u"城市"_s).constFirst(), u"Beijing"_s);
}

TEST_F(History, ABackStepPassesWhatTheDatabaseRefusesNow)
{
    database.run(u"CREATE VIEW 货架 AS SELECT ID, 名称, 城市 FROM 商品"_s);
    ASSERT_TRUE(load(u"SELECT * FROM 货架"_s, u"SELECT ID,名称 FROM 货架"_s));
    {
        WindowAnswers dialogs({[&](QDialog &dialog) { find(dialog, u"杭州"_s, u"城市"_s); }});
        click(u"QuickFilter"_s);
    }
    ASSERT_EQ(rows(), 2);
    click(u"ToFullTable"_s);
    ASSERT_EQ(rows(), records);
    database.run(u"DROP VIEW 货架; CREATE VIEW 货架 AS SELECT ID, 名称 FROM 商品 WHERE ID < 9"_s);
    click(u"ToPreview"_s);
    EXPECT_EQ(rows(), 8) << "the first statement, as the second has a condition on a lost field";
    EXPECT_EQ(statement(), u"SELECT * FROM 货架"_s);
    EXPECT_EQ(messages.texts(), QStringList());
    EXPECT_EQ(listed(), (QStringList{u"12"_s, u"2"_s, u"*8"_s})) << "what was left is ahead";

    database.run(u"DROP VIEW 货架"_s);
    click(u"ToPreview"_s);
    EXPECT_EQ(rows(), 8);
    ASSERT_EQ(messages.texts().size(), 1);
    EXPECT_TRUE(messages.texts().first().contains(u"货架"_s)) << qPrintable(messages.texts().first());
    messages.clear();
}

TEST_F(History, APartStatementThatCannotBeReadHidesNothingAndStopsNothing)
{
    load(statementOfAll(), u"SELECT nope FROM nowhere"_s);
    messages.clear();
    click(u"Part"_s);
    EXPECT_EQ(columns(), AllColumns);
    narrow(u"茶"_s);
    EXPECT_EQ(rows(), 6);
    EXPECT_EQ(columns(), AllColumns);
    click(u"ToPreview"_s);
    EXPECT_EQ(rows(), records);
    EXPECT_EQ(messages.texts(), QStringList());
    messages.clear();
}
