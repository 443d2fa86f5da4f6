// One record as a list, and editing it there.
#include "Shop.h"

#include "support/Dialogs.h"

#include <QtWidgets/QHeaderView>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

class SingleRecord : public Shop
{
protected:
    // Replaces a value by typing and confirms it with Enter.
    void write(const QString &field, const QString &text)
    {
        makeCurrent(field);
        QTest::keyClick(list, Qt::Key_F2);
        ASSERT_TRUE(edit->isVisible());
        edit->selectAll();
        compose(*edit, text);
        QTest::keyClick(edit, Qt::Key_Return);
    }
};

} // namespace

TEST_F(SingleRecord, ListsTheCurrentRecordWithoutBinaryFields)
{
    ASSERT_TRUE(load());
    clickCell(2, 3);
    click(u"SingleRecord"_s);
    EXPECT_TRUE(list->isVisible());
    EXPECT_FALSE(table->isVisible());
    EXPECT_FALSE(button(u"SingleRecord"_s)->isVisible());
    EXPECT_TRUE(button(u"AllRecord"_s)->isVisible());
    EXPECT_EQ(list->model()->headerData(0, Qt::Horizontal).toString(), u"字段名称"_s);
    EXPECT_EQ(list->model()->headerData(1, Qt::Horizontal).toString(), u"字段内容"_s);
    EXPECT_EQ(list->model()->rowCount(), 6) << "one fewer than fields: the picture";
    EXPECT_EQ(listed(u"名称"_s), u"普洱茶"_s);
    EXPECT_EQ(listed(u"日期"_s), u"2024-02-29"_s);
    EXPECT_EQ(listed(u"停用"_s), u"False"_s);
    EXPECT_EQ(list->geometry(), table->geometry());
    click(u"AllRecord"_s);
    EXPECT_TRUE(table->isVisible());
    EXPECT_FALSE(list->isVisible());
    EXPECT_TRUE(button(u"SingleRecord"_s)->isVisible());
    EXPECT_FALSE(button(u"AllRecord"_s)->isVisible());
    EXPECT_EQ(grid.GetGridRow(), 2);
}

TEST_F(SingleRecord, ShowsTheRecordOfTheCellThatHadTheKeyboardWhereverThatIs)
{
    ASSERT_TRUE(load(u"SELECT ID, 名称 FROM 商品"_s, u"SELECT 名称 FROM 商品"_s));
    for (const auto &[row, col] : {std::pair(5, 2), std::pair(records, 2), std::pair(3, 1)}) {
        clickCell(row, col);
        table->setFocus();
        QSignalSpy moves(&grid, &KOVAVSFDataGrid::RecordChanged);
        for (int turn = 0; turn < 2; ++turn) {
            click(u"SingleRecord"_s);
            EXPECT_EQ(listed(u"ID"_s), QString::number(row));
            EXPECT_EQ(grid.CurrPosition(), row);
            click(u"AllRecord"_s);
            EXPECT_EQ(grid.GetGridRow(), row);
            EXPECT_EQ(grid.GetGridCol(), col);
        }
        EXPECT_EQ(moves.size(), 0);
    }
}

TEST_F(SingleRecord, ANullIsTheEmptyText)
{
    ASSERT_TRUE(load());
    clickCell(3, 1);
    click(u"SingleRecord"_s);
    EXPECT_EQ(listed(u"日期"_s), u""_s);
    EXPECT_GE(listedRow(u"日期"_s), 0);
}

TEST_F(SingleRecord, TheNameColumnFitsTheWidestName)
{
    ASSERT_TRUE(load());
    click(u"SingleRecord"_s);
    int widest = 0;
    for (const QString &name : {u"字段名称"_s, u"Unit Price"_s, u"ID"_s})
        widest = std::max(widest, list->fontMetrics().horizontalAdvance(name));
    EXPECT_EQ(list->columnWidth(0), widest + 12) << "180 twips at 96 DPI";
}

TEST_F(SingleRecord, TheValuesFillWhateverWidthThereIs)
{
    ASSERT_TRUE(load());
    const auto resize = [this](const QSize &size) {
        grid.resize(size);
        QCoreApplication::processEvents();
        grid.grab();
    };
    resize({300, 150});
    resize({1000, 500});
    click(u"SingleRecord"_s);
    for (const QSize size : {QSize(1000, 500), QSize(700, 500), QSize(300, 150), QSize(1000, 500)}) {
        resize(size);
        EXPECT_EQ(list->columnWidth(0) + list->columnWidth(1), list->viewport()->width()) << size.width();
    }
}

TEST_F(SingleRecord, TheHostGivesTheKeyboardToTheList)
{
    ASSERT_TRUE(load());
    click(u"SingleRecord"_s);
    grid.setFocus();
    EXPECT_EQ(grid.window()->focusWidget(), list);
    click(u"AllRecord"_s);
    grid.setFocus();
    EXPECT_EQ(grid.window()->focusWidget(), table);
}

TEST_F(SingleRecord, IsRefilledByWhatShowsAnotherRecordOrFields)
{
    ASSERT_TRUE(load());
    click(u"SingleRecord"_s);
    WindowAnswers dialogs({[](QDialog &dialog) { sort(dialog, {u"ID"_s}, true); },
                           [](QDialog &dialog) { find(dialog, u"普洱"_s); }});
    click(u"Sort"_s);
    EXPECT_TRUE(isSingleRecordShown());
    EXPECT_EQ(listed(u"ID"_s), u"12"_s);
    click(u"QuickFilter"_s);
    EXPECT_EQ(listed(u"ID"_s), u"2"_s);
    click(u"Part"_s);
    EXPECT_TRUE(isSingleRecordShown());
    EXPECT_EQ(listed(u"城市"_s), u"昆明"_s) << "it lists the result's fields";
    click(u"All"_s);
    click(u"ToFullTable"_s);
    EXPECT_TRUE(isSingleRecordShown());
    EXPECT_EQ(listed(u"ID"_s), u"12"_s);
    EXPECT_TRUE(grid.LocateSelRecord(5));
    EXPECT_EQ(listed(u"ID"_s), u"8"_s);
    click(u"ToOrigin"_s);
    EXPECT_FALSE(isSingleRecordShown());
}

TEST_F(SingleRecord, FilterKeepsIt)
{
    ASSERT_TRUE(load());
    click(u"SingleRecord"_s);
    WindowAnswers dialogs({[](QDialog &dialog) { filter(dialog, u"ID = 7"_s); }});
    click(u"Filter"_s);
    EXPECT_TRUE(isSingleRecordShown());
    EXPECT_EQ(listed(u"名称"_s), u"挂面"_s);
}

TEST_F(SingleRecord, SelFieldLeavesIt)
{
    ASSERT_TRUE(load());
    click(u"SingleRecord"_s);
    WindowAnswers dialogs({[](QDialog &dialog) { tick(dialog, {u"ID"_s}); }});
    click(u"SelField"_s);
    EXPECT_FALSE(isSingleRecordShown());
    EXPECT_EQ(columns(), QStringList(u"ID"_s));
}

TEST_F(SingleRecord, ADoubleClickReportsTheFieldsColumnAndTheGridsRow)
{
    ASSERT_TRUE(load(u"SELECT ID,图片,名称 FROM 商品"_s));
    clickCell(4, 1);
    click(u"SingleRecord"_s);
    QSignalSpy twice(&grid, &KOVAVSFDataGrid::DataDblClick);
    QSignalSpy cell(&grid, &KOVAVSFDataGrid::DataDBLClickOneCell);
    QSignalSpy row(&grid, &KOVAVSFDataGrid::DataDBLClickOneRow);
    const QPoint name = list->visualRect(list->model()->index(1, 1)).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, name);
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, name);
    EXPECT_EQ(twice.count(), 1);
    ASSERT_EQ(cell.count(), 1);
    EXPECT_EQ(cell.at(0).at(0).toInt(), 3) << "the picture before it counts although it is not listed";
    EXPECT_EQ(cell.at(0).at(1).toInt(), 4);

    QHeaderView *heading = list->horizontalHeader();
    const int y = heading->height() / 2;
    QTest::mouseDClick(heading->viewport(), Qt::LeftButton, {}, {heading->sectionPosition(1) + 30, y});
    ASSERT_EQ(row.count(), 1);
    EXPECT_EQ(row.at(0).at(0).toInt(), 4);
    QTest::mouseDClick(heading->viewport(), Qt::LeftButton, {}, {5, y});
    EXPECT_EQ(twice.count(), 3);
    EXPECT_EQ(row.count(), 1);
    EXPECT_EQ(cell.count(), 1);
    QTest::mouseDClick(heading->viewport(), Qt::RightButton, {}, {5, y});
    EXPECT_EQ(twice.count(), 3) << "the left button alone";
}

TEST_F(SingleRecord, AValueIsEditedAndSavedOnLeaving)
{
    ASSERT_TRUE(load());
    clickCell(5, 1);
    click(u"SingleRecord"_s);
    write(u"城市"_s, u"沈阳"_s);
    EXPECT_FALSE(edit->isVisible());
    EXPECT_EQ(listed(u"城市"_s), u"沈阳"_s);
    EXPECT_EQ(stored(u"城市"_s, 5), u"大连"_s) << "not before the record is left";
    click(u"AllRecord"_s);
    EXPECT_EQ(stored(u"城市"_s, 5), u"沈阳"_s);
    EXPECT_EQ(texts(u"城市"_s).at(4), u"沈阳"_s);
    EXPECT_EQ(database.ask(u"SELECT count(*) FROM 商品 WHERE 城市 = '沈阳'"_s), u"1"_s);
}

TEST_F(SingleRecord, TypingBeginsAnEditAndEscRestores)
{
    ASSERT_TRUE(load());
    click(u"SingleRecord"_s);
    makeCurrent(u"名称"_s);
    QTest::keyClick(list, 'a');
    ASSERT_TRUE(edit->isVisible());
    EXPECT_TRUE(edit->hasFocus());
    EXPECT_EQ(edit->text(), u"a"_s);
    QTest::keyClicks(edit, u"bc"_s);
    QTest::keyClick(edit, Qt::Key_Escape);
    EXPECT_FALSE(edit->isVisible());
    EXPECT_EQ(listed(u"名称"_s), u"龙井茶"_s);
    click(u"AllRecord"_s);
    EXPECT_EQ(stored(u"名称"_s, 1), u"龙井茶"_s);
}

TEST_F(SingleRecord, ChineseCanBeTypedToBegin)
{
    ASSERT_TRUE(load());
    click(u"SingleRecord"_s);
    makeCurrent(u"名称"_s);
    QInputMethodEvent typed;
    typed.setCommitString(u"碧螺春"_s);
    QCoreApplication::sendEvent(list, &typed);
    ASSERT_TRUE(edit->isVisible());
    EXPECT_EQ(edit->text(), u"碧螺春"_s);
    click(u"AllRecord"_s); // also commits the text in the box
    EXPECT_EQ(stored(u"名称"_s, 1), u"碧螺春"_s);
}

TEST_F(SingleRecord, AllAndPartTakeWhatIsBeingTyped)
{
    ASSERT_TRUE(load());
    click(u"SingleRecord"_s);
    for (const QString &key : {u"Part"_s, u"All"_s}) {
        makeCurrent(u"名称"_s);
        QTest::keyClick(list, Qt::Key_F2);
        compose(*edit, key);
        click(key);
        EXPECT_EQ(listed(u"名称"_s), key);
        EXPECT_TRUE(isSingleRecordShown());
    }
    EXPECT_EQ(stored(u"名称"_s, 1), u"龙井茶"_s) << "not before the record is left";
    click(u"AllRecord"_s);
    EXPECT_EQ(stored(u"名称"_s, 1), u"All"_s);
}

TEST_F(SingleRecord, WhatWasEditedIsSavedWhenAllHasToOpenAnotherResult)
{
    ASSERT_TRUE(load());
    click(u"Part"_s);
    WindowAnswers dialogs({[](QDialog &dialog) { find(dialog, u"龙井"_s); }});
    click(u"QuickFilter"_s); // opened from the part statement
    click(u"SingleRecord"_s);
    ASSERT_EQ(listedRow(u"城市"_s), -1);
    write(u"名称"_s, u"龙井新茶"_s);
    click(u"All"_s);
    EXPECT_EQ(listed(u"城市"_s), u"杭州"_s);
    EXPECT_EQ(listed(u"名称"_s), u"龙井新茶"_s);
    EXPECT_EQ(stored(u"名称"_s, 1), u"龙井新茶"_s);
}

TEST_F(SingleRecord, LeavingItGivesTheKeyboardToTheGrid)
{
    ASSERT_TRUE(load());
    for (const QString &key : {u"AllRecord"_s, u"ToPreview"_s, u"ToOrigin"_s}) {
        table->setFocus();
        click(u"SingleRecord"_s);
        EXPECT_TRUE(list->hasFocus());
        click(key);
        EXPECT_FALSE(isSingleRecordShown());
        EXPECT_TRUE(table->hasFocus()) << qUtf8Printable(key);
    }
}

TEST_F(SingleRecord, EscInTheListGivesUpTheWholeRecord)
{
    ASSERT_TRUE(load());
    click(u"SingleRecord"_s);
    write(u"名称"_s, u"甲"_s);
    write(u"城市"_s, u"乙"_s);
    QTest::keyClick(list, Qt::Key_Escape);
    EXPECT_EQ(listed(u"名称"_s), u"龙井茶"_s);
    EXPECT_EQ(listed(u"城市"_s), u"杭州"_s);
    click(u"AllRecord"_s);
    EXPECT_EQ(stored(u"名称"_s, 1), u"龙井茶"_s);
}

TEST_F(SingleRecord, AValueThatDoesNotFitIsReportedAndStays)
{
    ASSERT_TRUE(load());
    click(u"SingleRecord"_s);
    write(u"日期"_s, u"明年"_s);
    ASSERT_EQ(messages.shown().size(), 1u);
    EXPECT_TRUE(messages.texts().first().contains(u"明年"_s));
    EXPECT_TRUE(edit->isVisible());
    EXPECT_EQ(edit->text(), u"明年"_s);
    click(u"AllRecord"_s);
    EXPECT_TRUE(isSingleRecordShown()) << "the record can't be left like this";
    QTest::keyClick(edit, Qt::Key_Escape);
    click(u"AllRecord"_s);
    EXPECT_FALSE(isSingleRecordShown());
    EXPECT_EQ(stored(u"日期"_s, 1), u"2024-01-05"_s);
}

TEST_F(SingleRecord, ARefusedSaveKeepsWhatWasTypedAndSaysWhy)
{
    ASSERT_TRUE(load());
    click(u"SingleRecord"_s);
    write(u"ID"_s, u"2"_s);
    click(u"Sort"_s);
    ASSERT_EQ(messages.shown().size(), 1u);
    EXPECT_TRUE(messages.texts().first().startsWith(u"记录没有保存："_s));
    EXPECT_TRUE(isSingleRecordShown());
    EXPECT_EQ(listed(u"ID"_s), u"2"_s);
    QTest::keyClick(list, Qt::Key_Escape);
    EXPECT_EQ(listed(u"ID"_s), u"1"_s);
}

TEST_F(SingleRecord, AnEmptiedNumberIsNull)
{
    ASSERT_TRUE(load());
    click(u"SingleRecord"_s);
    makeCurrent(u"Unit Price"_s);
    QTest::keyClick(list, Qt::Key_F2);
    edit->clear();
    QTest::keyClick(edit, Qt::Key_Return);
    click(u"AllRecord"_s);
    EXPECT_EQ(database.ask(u"SELECT typeof(\"Unit Price\") FROM 商品 WHERE ID = 1"_s), u"null"_s);
}

TEST_F(SingleRecord, WhatCannotBeWrittenOpensForReadingAndSaysSo)
{
    ASSERT_TRUE(load(u"SELECT 城市, count(*) AS 个数 FROM 商品 GROUP BY 城市"_s, {}));
    click(u"SingleRecord"_s);
    makeCurrent(u"城市"_s);
    QTest::keyClick(list, 'x');
    ASSERT_TRUE(edit->isVisible());
    EXPECT_TRUE(edit->isReadOnly());
    EXPECT_TRUE(edit->toolTip().contains(u"只读"_s));
    QTest::keyClick(edit, Qt::Key_Return);
    click(u"AllRecord"_s);
    EXPECT_TRUE(messages.shown().empty());
}

TEST_F(SingleRecord, ResizingTakesTheTypedTextAndPutsTheBoxAway)
{
    ASSERT_TRUE(load());
    click(u"SingleRecord"_s);
    makeCurrent(u"名称"_s);
    QTest::keyClick(list, 'a');
    grid.resize(1300, 500);
    EXPECT_FALSE(edit->isVisible());
    EXPECT_EQ(listed(u"名称"_s), u"a"_s);
}

TEST_F(SingleRecord, TheHostsMovesAreFollowed)
{
    ASSERT_TRUE(load());
    click(u"SingleRecord"_s);
    QObject *recordset = grid.RecordSet();
    ASSERT_TRUE(QMetaObject::invokeMethod(recordset, "MoveNext"));
    EXPECT_EQ(listed(u"ID"_s), u"2"_s);
    EXPECT_EQ(grid.GetGridRow(), 2);
    click(u"AllRecord"_s);
    EXPECT_EQ(grid.GetGridRow(), 2);
}
