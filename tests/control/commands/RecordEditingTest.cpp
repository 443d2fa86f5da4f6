// From record to record in the list, and what its editors do beside taking a line of text.
#include "Shop.h"

#include <QtTest/QTest>
#include <QtWidgets/QCalendarWidget>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QToolButton>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

class RecordEditing : public Shop
{
};

} // namespace

TEST_F(RecordEditing, AltPageKeysGoFromRecordToRecord)
{
    ASSERT_TRUE(load());
    clickCell(3, 2);
    click(u"SingleRecord"_s);
    makeCurrent(u"名称"_s);
    QTest::keyClick(list, Qt::Key_PageDown, Qt::AltModifier);
    EXPECT_EQ(listed(u"ID"_s), u"4"_s);
    EXPECT_EQ(grid.CurrPosition(), 4);
    EXPECT_EQ(grid.GetGridRow(), 4);
    EXPECT_EQ(list->currentIndex().row(), listedRow(u"名称"_s)) << "the same field stays current";
    QTest::keyClick(list, Qt::Key_PageUp, Qt::AltModifier);
    QTest::keyClick(list, Qt::Key_PageUp, Qt::AltModifier);
    EXPECT_EQ(listed(u"ID"_s), u"2"_s);
    click(u"AllRecord"_s);
    EXPECT_EQ(grid.GetGridRow(), 2);
    EXPECT_EQ(grid.GetGridCol(), 2);
}

TEST_F(RecordEditing, TheFirstAndTheLastRecordAreTheEnds)
{
    ASSERT_TRUE(load());
    clickCell(1, 1);
    click(u"SingleRecord"_s);
    QTest::keyClick(list, Qt::Key_PageUp, Qt::AltModifier);
    EXPECT_EQ(listed(u"ID"_s), u"1"_s);
    for (int i = 0; i < records + 3; ++i)
        QTest::keyClick(list, Qt::Key_PageDown, Qt::AltModifier);
    EXPECT_EQ(listed(u"ID"_s), QString::number(records));
}

TEST_F(RecordEditing, TheHeadingsButtonsStepToo)
{
    ASSERT_TRUE(load());
    clickCell(3, 1);
    click(u"SingleRecord"_s);
    auto *next = grid.findChild<QPushButton *>(u"cmdNextRecord"_s);
    auto *previous = grid.findChild<QPushButton *>(u"cmdPreviousRecord"_s);
    ASSERT_TRUE(next && next->isVisible() && previous && previous->isVisible());
    QTest::mouseClick(next, Qt::LeftButton);
    EXPECT_EQ(listed(u"ID"_s), u"4"_s);
    QTest::mouseClick(previous, Qt::LeftButton);
    QTest::mouseClick(previous, Qt::LeftButton);
    EXPECT_EQ(listed(u"ID"_s), u"2"_s);
}

TEST_F(RecordEditing, SteppingTurnsThePage)
{
    ASSERT_TRUE(load(u"WITH RECURSIVE c(n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM c WHERE n < 1000002) "
                     "SELECT n FROM c"_s,
                     {}));
    click(u"Next"_s);
    click(u"SingleRecord"_s);
    const int first = listed(u"n"_s).toInt();
    EXPECT_GT(first, 1);
    QTest::keyClick(list, Qt::Key_PageUp, Qt::AltModifier);
    EXPECT_EQ(listed(u"n"_s), QString::number(first - 1));
    QTest::keyClick(list, Qt::Key_PageDown, Qt::AltModifier);
    EXPECT_EQ(listed(u"n"_s), QString::number(first));
    EXPECT_EQ(grid.GetGridRow(), 1);
}

TEST_F(RecordEditing, SteppingSavesTheRecordOrStays)
{
    ASSERT_TRUE(load());
    clickCell(3, 1);
    click(u"SingleRecord"_s);
    makeCurrent(u"城市"_s);
    QTest::keyClick(list, Qt::Key_F2);
    edit->setText(u"沈阳"_s);
    QTest::keyClick(edit, Qt::Key_PageDown, Qt::AltModifier);
    EXPECT_EQ(stored(u"城市"_s, 3), u"沈阳"_s);
    EXPECT_EQ(listed(u"ID"_s), u"4"_s);

    makeCurrent(u"ID"_s);
    QTest::keyClick(list, Qt::Key_F2);
    edit->setText(u"5"_s);
    QTest::keyClick(edit, Qt::Key_PageDown, Qt::AltModifier);
    EXPECT_EQ(listed(u"ID"_s), u"5"_s) << "what was typed, not the next record";
    EXPECT_EQ(grid.CurrPosition(), 4);
    ASSERT_EQ(messages.texts().size(), 1) << "another record has this number";
    messages.clear();
    QTest::keyClick(list, Qt::Key_Escape);
    EXPECT_EQ(listed(u"ID"_s), u"4"_s);
}

TEST_F(RecordEditing, EnterAndADoubleClickBeginAnEdit)
{
    ASSERT_TRUE(load());
    click(u"SingleRecord"_s);
    makeCurrent(u"名称"_s);
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_TRUE(edit->isVisible());
    QTest::keyClick(edit, Qt::Key_Escape);
    EXPECT_FALSE(edit->isVisible());
    QSignalSpy cell(&grid, &KOVAVSFDataGrid::DataDBLClickOneCell);
    const QPoint place = list->visualRect(list->model()->index(listedRow(u"名称"_s), 1)).center();
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, place);
    EXPECT_EQ(cell.count(), 1);
    EXPECT_TRUE(edit->isVisible());
}

TEST_F(RecordEditing, ADoubleClickOnWhatCannotBeWrittenOpensNothing)
{
    ASSERT_TRUE(load(u"SELECT upper(名称) AS 大写 FROM 商品"_s, {}));
    click(u"SingleRecord"_s);
    const QPoint place = list->visualRect(list->model()->index(0, 1)).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, place);
    EXPECT_FALSE(edit->isVisible());
}

TEST_F(RecordEditing, AHostThatAnswersADoubleClickKeepsTheKeyboard)
{
    ASSERT_TRUE(load());
    click(u"SingleRecord"_s);
    makeCurrent(u"名称"_s);
    QObject::connect(&grid, &KOVAVSFDataGrid::DataDBLClickOneCell, &grid, [this] { click(u"AllRecord"_s); });
    const QPoint place = list->visualRect(list->model()->index(listedRow(u"名称"_s), 1)).center();
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, place);
    EXPECT_FALSE(edit->isVisible());
    EXPECT_TRUE(table->isVisible());
}

TEST_F(RecordEditing, ControlZeroStoresNullAndNotTheEmptyText)
{
    ASSERT_TRUE(load());
    clickCell(3, 1);
    click(u"SingleRecord"_s);
    makeCurrent(u"城市"_s);
    QTest::keyClick(list, Qt::Key_F2);
    edit->clear();
    QTest::keyClick(edit, Qt::Key_Return);
    click(u"AllRecord"_s);
    EXPECT_EQ(database.ask(u"SELECT typeof(城市) FROM 商品 WHERE ID = 3"_s), u"text"_s);

    click(u"SingleRecord"_s);
    makeCurrent(u"城市"_s);
    QTest::keyClick(list, Qt::Key_F2);
    QTest::keyClick(edit, Qt::Key_0, Qt::ControlModifier);
    EXPECT_FALSE(edit->isVisible());
    click(u"AllRecord"_s);
    EXPECT_EQ(database.ask(u"SELECT typeof(城市) FROM 商品 WHERE ID = 3"_s), u"null"_s);
    EXPECT_EQ(statement(), statementOfAll()) << "the command that has this key otherwise did not run";
}

TEST_F(RecordEditing, ControlSSavesAChangedRecordAndExportsNothing)
{
    ASSERT_TRUE(load());
    clickCell(3, 1);
    click(u"SingleRecord"_s);
    makeCurrent(u"城市"_s);
    QTest::keyClick(list, Qt::Key_F2);
    edit->setText(u"沈阳"_s);
    QTest::keyClick(edit, Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(stored(u"城市"_s, 3), u"沈阳"_s);

    QTest::keyClick(list, Qt::Key_F2);
    edit->setText(u"抚顺"_s);
    QTest::keyClick(edit, Qt::Key_Return);
    EXPECT_EQ(stored(u"城市"_s, 3), u"沈阳"_s);
    QTest::keyClick(list, Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(stored(u"城市"_s, 3), u"抚顺"_s);
    EXPECT_TRUE(isSingleRecordShown());
}

TEST_F(RecordEditing, TheFirstRecordOfAnEmptyTableIsAddedByTheKeyThatTheHintNames)
{
    ASSERT_TRUE(load(u"SELECT ID, 名称 FROM 商品 WHERE ID > 100"_s, {}));
    table->setFocus();
    QTest::keyClick(table, Qt::Key_Plus, Qt::ControlModifier);
    ASSERT_TRUE(isSingleRecordShown());
    makeCurrent(u"名称"_s);
    QTest::keyClick(list, Qt::Key_Return);
    edit->setText(u"毛尖"_s);
    QTest::keyClick(edit, Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(database.ask(u"SELECT count(*) FROM 商品 WHERE 名称 = '毛尖'"_s), u"1"_s);
    click(u"AllRecord"_s);
    EXPECT_EQ(rows(), 1);
}

TEST_F(RecordEditing, AnEmptyTableOffersToAddTheFirstRecord)
{
    ASSERT_TRUE(load(u"SELECT ID, 名称 FROM 商品 WHERE ID > 100"_s, {}));
    auto *add = grid.findChild<QPushButton *>(u"cmdAddFirst"_s);
    ASSERT_TRUE(add && add->isVisible());
    EXPECT_EQ(add->text(), u"增加第一条记录"_s);
    table->setFocus();
    QTest::keyClick(table, Qt::Key_Tab);
    ASSERT_TRUE(add->hasFocus()) << "the keyboard reaches it";
    QTest::keyClick(add, Qt::Key_Space);
    ASSERT_TRUE(isSingleRecordShown());
    EXPECT_TRUE(list->hasFocus());
    EXPECT_FALSE(add->isVisible());
    QTest::keyClick(list, Qt::Key_Escape);
    EXPECT_TRUE(add->isVisible()) << "there is still none";
    QTest::mouseClick(add, Qt::LeftButton);
    EXPECT_TRUE(isSingleRecordShown());
    QTest::keyClick(list, Qt::Key_Escape);

    grid.setProperty("ReadOnly", true);
    ASSERT_TRUE(load(u"SELECT ID, 名称 FROM 商品 WHERE ID > 100"_s, {}));
    EXPECT_FALSE(add->isVisible());
    grid.setProperty("ReadOnly", false);
    ASSERT_TRUE(load());
    EXPECT_FALSE(add->isVisible());
}

TEST_F(RecordEditing, TheListHasTheDatasFontAndColour)
{
    QFont large = grid.DataFont();
    large.setPointSize(large.pointSize() + 6);
    grid.PutDataFont(large);
    grid.PutDataBackColor(QColor(255, 250, 220));
    ASSERT_TRUE(load());
    click(u"SingleRecord"_s);
    EXPECT_EQ(list->font(), large);
    makeCurrent(u"名称"_s);
    QTest::keyClick(list, Qt::Key_F2);
    EXPECT_EQ(edit->font().pointSize(), large.pointSize());
    QTest::keyClick(edit, Qt::Key_Escape);
    const QRect value = list->visualRect(list->model()->index(0, 1)); // of those not shaded
    EXPECT_EQ(list->viewport()->grab(value).toImage().pixelColor(value.width() - 20, value.height() / 2),
              QColor(255, 250, 220));
    EXPECT_GE(value.height(), list->fontMetrics().height());
}

TEST_F(RecordEditing, ALargerFontMakesRoomForNamesAndTheTickAtOnce)
{
    database.run(u"CREATE TABLE 照片 (ID INTEGER PRIMARY KEY, 拍摄时间和地点 TEXT, 照片 BLOB);"
                 "INSERT INTO 照片 VALUES (1, 'a', x'89504E470D0A1A0A')"_s);
    ASSERT_TRUE(load(u"SELECT * FROM 照片"_s, {}));
    click(u"SingleRecord"_s);
    const int before = list->columnWidth(0);
    QFont large = grid.DataFont();
    large.setPointSize(large.pointSize() * 2);
    grid.PutDataFont(large);
    EXPECT_GE(list->columnWidth(0), list->fontMetrics().horizontalAdvance(u"拍摄时间和地点"_s));
    EXPECT_GT(list->columnWidth(0), before);
    const auto *pictures = grid.findChild<QCheckBox *>(u"chkPictures"_s);
    ASSERT_TRUE(pictures && pictures->isVisible());
    EXPECT_GE(pictures->width(), pictures->sizeHint().width());
}

TEST_F(RecordEditing, ADateIsPickedFromACalendar)
{
    ASSERT_TRUE(load());
    clickCell(2, 1);
    click(u"SingleRecord"_s);
    makeCurrent(u"日期"_s);
    QTest::keyClick(list, Qt::Key_F2);
    QTest::keyClick(edit, Qt::Key_Down, Qt::AltModifier);
    auto *calendar = edit->findChild<QCalendarWidget *>();
    ASSERT_TRUE(calendar && calendar->isVisible());
    EXPECT_EQ(calendar->selectedDate(), QDate(2024, 2, 29));
    QStringList words;
    for (const auto *button : calendar->findChildren<QToolButton *>()) {
        if (!button->objectName().startsWith(u"qt_"_s))
            words.append(button->text());
    }
    EXPECT_EQ(words, QStringList(u"今天"_s)) << "no field holds a week";
    Q_EMIT calendar->activated(QDate(2024, 3, 1));
    QTest::keyClick(edit, Qt::Key_Return);
    click(u"AllRecord"_s);
    EXPECT_EQ(stored(u"日期"_s, 2), u"2024-03-01"_s);
}

TEST_F(RecordEditing, YesAndNoAreWrittenInChinese)
{
    ASSERT_TRUE(load());
    clickCell(2, 1);
    click(u"SingleRecord"_s);
    makeCurrent(u"停用"_s);
    QTest::keyClick(list, Qt::Key_F2);
    edit->setText(u"是"_s);
    QTest::keyClick(edit, Qt::Key_Return);
    EXPECT_EQ(listed(u"停用"_s), u"True"_s);
    click(u"AllRecord"_s);
    EXPECT_EQ(texts(u"停用"_s).at(1), u"True"_s);
}
