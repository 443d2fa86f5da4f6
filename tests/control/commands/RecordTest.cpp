// Commands that change records: deleting and adding.
#include "Shop.h"

#include "support/Dialogs.h"

#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollBar>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

class RecordsOf : public Shop
{
protected:
    QString count() const { return database.ask(u"SELECT count(*) FROM 商品"_s); }
    void remove(int row, QMessageBox::StandardButton answer = QMessageBox::Yes)
    {
        messages.answerNext(answer);
        choose(9, row);
    }
    void write(const QString &field, const QString &text)
    {
        list->setCurrentIndex(list->model()->index(listedRow(field), 1));
        list->setFocus();
        QTest::keyClick(list, Qt::Key_F2);
        ASSERT_TRUE(edit->isVisible());
        compose(*edit, text);
        QTest::keyClick(edit, Qt::Key_Return);
    }

    QMenu *menu = grid.findChild<QMenu *>(u"PopMnuData"_s);
};

} // namespace

TEST_F(RecordsOf, TheRowShownCurrentIsMeantAfterTheHostHasWalkedToTheEnd)
{
    ASSERT_TRUE(load());
    clickCell(3, 4);
    const auto walk = [&] {
        QObject *const recordset = grid.RecordSet();
        QMetaObject::invokeMethod(recordset, "MoveFirst");
        while (!recordset->property("EOF").toBool())
            QMetaObject::invokeMethod(recordset, "MoveNext");
        return QString::number(grid.GetGridRowL());
    };
    const QString row = walk();
    click(u"SingleRecord"_s);
    EXPECT_EQ(listed(u"ID"_s), row);
    click(u"AllRecord"_s);
    walk();
    messages.answerNext(QMessageBox::Yes);
    choose(9, row.toInt()); // deletion
    EXPECT_EQ(database.ask(u"SELECT count(*) FROM 商品 WHERE ID = "_s + row), u"0"_s);
}

TEST_F(RecordsOf, EveryCommandMeansTheRowShownAfterTheHostHasWalkedToTheEnd)
{
    ASSERT_TRUE(load());
    clickCell(3, 2);
    const auto walk = [&] {
        QObject *const recordset = grid.RecordSet();
        QMetaObject::invokeMethod(recordset, "MoveLast");
        QMetaObject::invokeMethod(recordset, "MoveNext");
        ASSERT_TRUE(recordset->property("EOF").toBool());
    };
    walk();
    const int row = grid.GetGridRowL();
    const QString name = texts(u"名称"_s).at(row - 1);
    click(u"SingleRecord"_s);
    EXPECT_EQ(listed(u"名称"_s), name);
    click(u"AllRecord"_s);
    walk();
    for (const char *key : {"First", "Previous", "Next", "Last"}) { // the only page stays
        click(QString::fromLatin1(key));
        EXPECT_EQ(rows(), records);
        EXPECT_EQ(grid.GetGridRowL(), row);
    }
    walk();
    click(u"CompressView"_s);
    EXPECT_EQ(grid.GetGridRowL(), row);
    walk();
    table->setFocus();
    QTest::keyClick(table, Qt::Key_L, Qt::ControlModifier | Qt::ShiftModifier); // the cell filter
    EXPECT_EQ(texts(u"名称"_s), QStringList(name)) << qUtf8Printable(statement());
    click(u"ToPreview"_s);
    grid.SetGridRow(5);
    walk();
    const QString shown = texts(u"ID"_s).at(grid.GetGridRowL() - 1);
    messages.answerNext(QMessageBox::Yes);
    QTest::keyClick(table, Qt::Key_Minus, Qt::ControlModifier); // deletion
    EXPECT_EQ(database.ask(u"SELECT count(*) FROM 商品 WHERE ID = "_s + shown), u"0"_s);
    EXPECT_EQ(count(), QString::number(records - 1));
}

TEST_F(RecordsOf, DeletingTakesTheOneRecordAndTheNextBecomesCurrent)
{
    ASSERT_TRUE(load());
    QSignalSpy moves(&grid, &KOVAVSFDataGrid::RecordChanged);
    clickCell(5, 1);
    moves.clear();
    remove(5);
    ASSERT_EQ(messages.shown().size(), 1u);
    EXPECT_EQ(messages.shown().front().text, u"确实要删除该记录?"_s);
    EXPECT_EQ(messages.shown().front().title, u"删除记录"_s);
    EXPECT_EQ(messages.shown().front().buttons, QMessageBox::Yes | QMessageBox::No);
    EXPECT_EQ(messages.shown().front().onEnter, QMessageBox::No) << "a key too many deletes nothing";
    EXPECT_EQ(count(), u"11"_s);
    EXPECT_EQ(rows(), 11);
    EXPECT_EQ(texts(u"ID"_s).join(u','), u"1,2,3,4,6,7,8,9,10,11,12"_s);
    EXPECT_EQ(grid.CellTextL(11, 0), u"11"_s) << "row numbers without a gap";
    EXPECT_EQ(grid.GetGridRow(), 5);
    EXPECT_EQ(grid.CurrPosition(), 5);
    EXPECT_EQ(moves.count(), 1);
    const auto line = grid.findChild<QLabel *>(u"lblStatement"_s);
    EXPECT_TRUE(line->text().startsWith(u"第 5 条，共 11 条"_s));
}

TEST_F(RecordsOf, DeletingTheFirstAndTheLast)
{
    ASSERT_TRUE(load());
    remove(1);
    EXPECT_EQ(grid.GetGridRow(), 1);
    EXPECT_EQ(grid.CellTextL(1, 1), u"2"_s);
    remove(11);
    EXPECT_EQ(grid.GetGridRow(), 10) << "the last one that is left";
    EXPECT_EQ(grid.CurrPosition(), 10);
    EXPECT_EQ(grid.CellTextL(10, 1), u"11"_s);
}

TEST_F(RecordsOf, DeletingAllLeavesAnEmptyResult)
{
    ASSERT_TRUE(load(u"SELECT * FROM 商品 WHERE ID > 11"_s));
    click(u"SingleRecord"_s);
    remove(1);
    EXPECT_EQ(count(), u"11"_s);
    EXPECT_EQ(rows(), 0);
    EXPECT_EQ(grid.GetGridRow(), 0);
    EXPECT_FALSE(isSingleRecordShown());
    EXPECT_EQ(pageLabel->text(), u"第0页共0页  只显示999999条以内的记录"_s);
    WindowAnswers windows;
    clickCell(1, 1, Qt::RightButton);
    EXPECT_FALSE(windows.wasMenuShown());
}

TEST_F(RecordsOf, AnsweringNoLeavesTheRecordAndTheGrid)
{
    ASSERT_TRUE(load());
    remove(4, QMessageBox::No);
    EXPECT_EQ(count(), u"12"_s);
    EXPECT_EQ(rows(), records);
    EXPECT_EQ(grid.GetGridRow(), 4);
    EXPECT_EQ(messages.shown().size(), 1u);
}

TEST_F(RecordsOf, ARecordThatOthersReferToStays)
{
    ASSERT_TRUE(load());
    remove(3);
    ASSERT_EQ(messages.shown().size(), 2u);
    EXPECT_EQ(messages.texts().last(), u"删除操作与数据库的约束冲突，不能删除此记录！"_s);
    EXPECT_EQ(messages.shown().back().buttons, QMessageBox::Ok);
    EXPECT_EQ(count(), u"12"_s);
    EXPECT_EQ(rows(), records);
    EXPECT_EQ(grid.GetGridRow(), 3);
    EXPECT_EQ(grid.CurrPosition(), 3);
}

TEST_F(RecordsOf, DeletingKeepsTheScrollPosition)
{
    database.run(u"WITH RECURSIVE n(i) AS (SELECT 100 UNION ALL SELECT i+1 FROM n WHERE i < 400)"
                 " INSERT INTO 商品(ID,名称) SELECT i, 'x' FROM n"_s);
    ASSERT_TRUE(load());
    table->verticalScrollBar()->setValue(120);
    const QModelIndex seen = table->indexAt({5, 50});
    messages.answerNext(QMessageBox::Yes);
    choose(9, seen.row() + 1);
    EXPECT_EQ(table->verticalScrollBar()->value(), 120);
    EXPECT_EQ(rows(), records + 300);
    EXPECT_EQ(grid.GetGridRow(), seen.row() + 1);
}

TEST_F(RecordsOf, DeletingInTheListShowsTheNextRecordThere)
{
    ASSERT_TRUE(load());
    clickCell(6, 1);
    click(u"SingleRecord"_s);
    remove(1);
    EXPECT_TRUE(isSingleRecordShown());
    EXPECT_EQ(listed(u"ID"_s), u"7"_s);
    EXPECT_EQ(database.ask(u"SELECT count(*) FROM 商品 WHERE ID = 6"_s), u"0"_s);
}

TEST_F(RecordsOf, ANewRecordIsFilledInTheListAndSaved)
{
    ASSERT_TRUE(load());
    choose(8, 1);
    EXPECT_TRUE(isSingleRecordShown());
    EXPECT_EQ(listed(u"名称"_s), u""_s);
    write(u"ID"_s, u"50"_s);
    write(u"名称"_s, u"新茶"_s);
    EXPECT_EQ(count(), u"12"_s);
    click(u"AllRecord"_s);
    EXPECT_EQ(count(), u"13"_s);
    EXPECT_EQ(rows(), 13);
    EXPECT_EQ(grid.GetGridRow(), 13);
    EXPECT_EQ(grid.CurrPosition(), 13);
    EXPECT_EQ(texts(u"名称"_s).last(), u"新茶"_s);
}

TEST_F(RecordsOf, AnEmptyNewRecordIsDropped)
{
    ASSERT_TRUE(load());
    clickCell(4, 1);
    choose(8, 4);
    click(u"AllRecord"_s);
    EXPECT_EQ(count(), u"12"_s);
    EXPECT_EQ(rows(), records);
    EXPECT_EQ(grid.CurrPosition(), 4);
    EXPECT_TRUE(messages.shown().empty());
}

TEST_F(RecordsOf, AddingAgainSavesTheNewRecordFirst)
{
    ASSERT_TRUE(load());
    choose(8, 1);
    write(u"ID"_s, u"50"_s);
    write(u"名称"_s, u"甲"_s);
    choose(8, 1);
    EXPECT_EQ(count(), u"13"_s);
    EXPECT_EQ(listed(u"ID"_s), u""_s);
    write(u"ID"_s, u"51"_s);
    write(u"名称"_s, u"乙"_s);
    click(u"AllRecord"_s);
    EXPECT_EQ(count(), u"14"_s);
    EXPECT_EQ(rows(), 14);
}

TEST_F(RecordsOf, AddingAgainToAnEmptyOrRefusedRecordIsCancelled)
{
    ASSERT_TRUE(load());
    choose(8, 1);
    choose(8, 1);
    EXPECT_EQ(messages.texts(), QStringList(u"再次插入空行操作已被取消"_s));
    write(u"ID"_s, u"50"_s); // and no 名称, which must not be Null
    choose(8, 1);
    EXPECT_EQ(messages.texts().size(), 2);
    EXPECT_EQ(messages.texts().last(), u"再次插入空行操作已被取消"_s);
    EXPECT_EQ(listed(u"ID"_s), u"50"_s) << "what was typed stays";
    EXPECT_EQ(count(), u"12"_s);
    click(u"AllRecord"_s);
    EXPECT_TRUE(isSingleRecordShown());
    EXPECT_TRUE(messages.texts().last().startsWith(u"记录没有保存："_s));
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Escape);
    click(u"AllRecord"_s);
    EXPECT_FALSE(isSingleRecordShown());
    EXPECT_EQ(count(), u"12"_s);
}

TEST_F(RecordsOf, ANewRecordOfAnEmptyResultCanBeGivenUp)
{
    ASSERT_TRUE(load(u"SELECT * FROM 商品 WHERE ID > 100"_s));
    table->setFocus();
    menu->actions().at(7)->trigger();
    EXPECT_TRUE(isSingleRecordShown());
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Escape);
    EXPECT_FALSE(isSingleRecordShown());
}

TEST_F(RecordsOf, AddingToWhatCannotBeWrittenEndsSilently)
{
    ASSERT_TRUE(load(u"SELECT 城市, count(*) FROM 商品 GROUP BY 城市"_s, {}));
    table->setFocus();
    QTest::keyClick(table, Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_FALSE(isSingleRecordShown());
    EXPECT_TRUE(messages.shown().empty());
}

TEST_F(RecordsOf, AddingWhereNoFieldCanBeWrittenIsGreyAndSaysWhy)
{
    const QString computed = u"SELECT ID + 0 AS 编号, upper(城市) AS 地区 FROM 商品"_s;
    ASSERT_TRUE(load(computed, {}));
    auto *add = menu->actions().at(7);
    EXPECT_FALSE(add->isEnabled());
    EXPECT_EQ(add->toolTip(), u"查询结果中没有可以修改的字段，不能增加记录。"_s);
    EXPECT_TRUE(menu->actions().at(8)->isEnabled()) << "the rows can be deleted";
    table->setFocus();
    QTest::keyClick(table, Qt::Key_Plus, Qt::ControlModifier);
    QTest::keyClick(table, Qt::Key_D, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_FALSE(isSingleRecordShown());

    ASSERT_TRUE(load(computed + u" WHERE ID > 100"_s, {}));
    EXPECT_FALSE(grid.findChild<QPushButton *>(u"cmdAddFirst"_s)->isVisible());

    ASSERT_TRUE(load(u"SELECT ID + 0 AS 编号, 名称 FROM 商品"_s, {}));
    EXPECT_TRUE(add->isEnabled());
}

TEST_F(RecordsOf, WhatTheHostChangesIsShown)
{
    ASSERT_TRUE(load());
    clickCell(3, 1);
    QObject *recordset = grid.RecordSet();
    ASSERT_TRUE(QMetaObject::invokeMethod(recordset, "MoveLast"));
    EXPECT_EQ(grid.GetGridRow(), 12);
    ASSERT_TRUE(QMetaObject::invokeMethod(recordset, "Delete"));
    QCoreApplication::processEvents();
    EXPECT_EQ(rows(), 11);
    EXPECT_EQ(grid.GetGridRow(), 11);
    EXPECT_EQ(grid.CurrPosition(), 11);
    EXPECT_EQ(count(), u"11"_s);
}

TEST_F(RecordsOf, ANewRecordThatTheHostLeavesForAnotherIsShown)
{
    ASSERT_TRUE(load());
    clickCell(2, 1);
    choose(8, 2);
    write(u"名称"_s, u"x"_s);
    EXPECT_TRUE(grid.LocateSelRecord(5));
    EXPECT_EQ(count(), u"13"_s);
    EXPECT_EQ(rows(), 13);
    EXPECT_EQ(grid.GetGridRow(), 5);
    EXPECT_EQ(grid.CurrPosition(), 5);
    EXPECT_EQ(listed(u"ID"_s), u"5"_s);
}

TEST_F(RecordsOf, ANewRecordThatTheHostLeavesByNameIsShown)
{
    ASSERT_TRUE(load());
    clickCell(2, 1);
    choose(8, 2);
    write(u"名称"_s, u"x"_s);
    ASSERT_TRUE(QMetaObject::invokeMethod(grid.RecordSet(), "MoveFirst"));
    QCoreApplication::processEvents();
    EXPECT_EQ(count(), u"13"_s);
    EXPECT_EQ(rows(), 13);
    EXPECT_EQ(grid.GetGridRow(), 1);
    EXPECT_EQ(grid.CurrPosition(), 1);
}

TEST_F(RecordsOf, ANewRecordIsSavedBeforeATextIsLookedForInAllRecords)
{
    ASSERT_TRUE(load());
    clickCell(2, 1);
    choose(8, 2);
    write(u"名称"_s, u"x"_s);
    choose(27, 1); // 在表格中查找
    EXPECT_TRUE(table->isVisible());
    EXPECT_EQ(count(), u"13"_s);
    EXPECT_EQ(rows(), 13);
    clickCell(5, 1);
    EXPECT_EQ(rows(), 13);
    EXPECT_EQ(grid.CurrPosition(), 5);
}

TEST_F(RecordsOf, ANewRecordThatIsEmptyIsGivenUpWhenTheHostLeavesIt)
{
    ASSERT_TRUE(load());
    clickCell(2, 1);
    choose(8, 2);
    EXPECT_TRUE(grid.LocateSelRecord(5));
    EXPECT_EQ(count(), u"12"_s);
    EXPECT_EQ(rows(), 12);
    EXPECT_EQ(grid.CurrPosition(), 5);
}

TEST_F(RecordsOf, DeletingTheNewRecordGivesItUp)
{
    ASSERT_TRUE(load());
    clickCell(2, 1);
    choose(8, 2);
    write(u"名称"_s, u"x"_s);
    remove(1);
    EXPECT_EQ(count(), u"12"_s);
    EXPECT_EQ(listed(u"ID"_s), u"2"_s);
}
