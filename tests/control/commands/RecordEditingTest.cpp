// From record to record in the list, and what its editors do beside taking a line of text.
#include "Shop.h"

#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>
#include <QtTest/QTest>
#include <QtWidgets/QCalendarWidget>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QToolTip>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

class RecordEditing : public Shop
{
protected:
    QPlainTextEdit *lines() { return grid.findChild<QPlainTextEdit *>(u"txtLines"_s); }
};

// A text as an SQL expression, and what it becomes when "Z" is put into the place of its "c".
struct BrokenText
{
    const char *expression;
    const char *changed;
};

} // namespace

// The editor shows every line break as the same.
TEST_F(RecordEditing, LineBreaksThatWereNotTouchedStayAsTheyAre)
{
    const BrokenText texts[] = {
        {"'a'||char(13,10)||'b'||char(10)||'c'", "'a'||char(13,10)||'b'||char(10)||'Z'"},
        {"'a'||char(10)||'c'||char(13,10)||'d'", "'a'||char(10)||'Z'||char(13,10)||'d'"},
        {"'a'||char(13)||'b'||char(10)||'c'||char(13)", "'a'||char(13)||'b'||char(10)||'Z'||char(13)"},
        {"'a'||char(13,13,10)||'c'", "'a'||char(13,13,10)||'Z'"},
        {"char(8233)||'c'||char(64976,10)||'d'", "char(8233)||'Z'||char(64976,10)||'d'"},
    };
    for (const BrokenText &text : texts) {
        SCOPED_TRACE(text.expression);
        const QString expression = QString::fromLatin1(text.expression);
        database.run(u"UPDATE 商品 SET 名称 = %1 WHERE ID = 1"_s.arg(expression));
        ASSERT_TRUE(load());
        click(u"SingleRecord"_s);
        makeCurrent(u"名称"_s);
        QTest::keyClick(list, Qt::Key_F2);
        ASSERT_TRUE(lines()->isVisible());
        QTest::keyClick(lines(), Qt::Key_Return);
        makeCurrent(u"城市"_s); // another field is changed
        QTest::keyClick(list, Qt::Key_F2);
        edit->setText(u"x"_s);
        QTest::keyClick(edit, Qt::Key_Return);
        click(u"AllRecord"_s);
        EXPECT_EQ(computed(u"名称 = "_s + expression, 1), u"1"_s);

        click(u"SingleRecord"_s);
        makeCurrent(u"名称"_s);
        QTest::keyClick(list, Qt::Key_F2);
        QTextCursor cursor = lines()->document()->find(u"c"_s);
        ASSERT_FALSE(cursor.isNull());
        cursor.insertText(u"Z"_s);
        QTest::keyClick(lines(), Qt::Key_Return);
        click(u"AllRecord"_s);
        EXPECT_EQ(computed(u"名称 = "_s + QString::fromLatin1(text.changed), 1), u"1"_s);
    }
}

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

TEST_F(RecordEditing, ALongTextHasSeveralLines)
{
    database.run(u"CREATE TABLE 备忘 (ID INTEGER PRIMARY KEY, 内容 TEXT);"
                 "INSERT INTO 备忘 VALUES (1, 'a' || char(13,10) || 'b' || char(160) || 'c'), (2, 'd')"_s);
    ASSERT_TRUE(load(u"SELECT * FROM 备忘"_s, {}));
    click(u"SingleRecord"_s);
    makeCurrent(u"内容"_s);
    QTest::keyClick(list, Qt::Key_F2);
    ASSERT_TRUE(lines()->isVisible());
    EXPECT_FALSE(edit->isVisible());
    EXPECT_TRUE(list->viewport()->rect().contains(lines()->geometry()));
    QTest::keyClick(lines(), Qt::Key_Return);
    EXPECT_FALSE(lines()->isVisible());
    const auto hex = [this](int id) {
        return database.ask(u"SELECT hex(内容) FROM 备忘 WHERE ID = %1"_s.arg(id));
    };
    click(u"AllRecord"_s);
    EXPECT_EQ(hex(1), u"610D0A62C2A063"_s) << "nothing was typed";

    click(u"SingleRecord"_s);
    makeCurrent(u"内容"_s);
    QTest::keyClick(list, Qt::Key_F2);
    QTest::keyClick(lines(), Qt::Key_Return, Qt::ControlModifier);
    QTest::keyClicks(lines(), u"d"_s);
    QTest::keyClick(lines(), Qt::Key_Return);
    click(u"AllRecord"_s);
    EXPECT_EQ(hex(1), u"610D0A62C2A0630D0A64"_s) << "the line breaks of the text, and its blank";
}

TEST_F(RecordEditing, EndsOfLinesStayAsTheyAreWhereNothingIsTyped)
{
    const QStringList texts{
        u"a\r\nb\nc"_s,          u"a\rb\nc"_s,     u"a\r\r\nb"_s,         u"\n\r"_s,
        u"a\u2029b\nc\u2028d"_s, u"a\uFDD0b\nc"_s, u"\uFDD1\r\n\uFFFC"_s, u"a\n\U0001F600\r"_s};
    database.run(u"CREATE TABLE 备忘 (ID INTEGER PRIMARY KEY, 内容 TEXT, 备注 TEXT)"_s);
    const auto hex = [this] { return database.ask(u"SELECT hex(内容) FROM 备忘"_s); };
    const auto isHexOf = [&](const QString &text) {
        EXPECT_EQ(hex(), QString::fromLatin1(text.toUtf8().toHex().toUpper())) << qPrintable(text);
    };
    for (const QString &text : texts) {
        database.run(u"DELETE FROM 备忘; INSERT INTO 备忘 VALUES (1, CAST(x'%1' AS TEXT), 'a')"_s.arg(
            QString::fromLatin1(text.toUtf8().toHex())));
        ASSERT_TRUE(load(u"SELECT * FROM 备忘"_s, {}));
        click(u"SingleRecord"_s);
        makeCurrent(u"内容"_s);
        QTest::keyClick(list, Qt::Key_F2);
        ASSERT_TRUE(lines()->isVisible());
        QTest::keyClick(lines(), Qt::Key_Return);
        makeCurrent(u"备注"_s);
        QTest::keyClick(list, 'b');
        QTest::keyClick(edit, Qt::Key_Return);
        click(u"AllRecord"_s);
        EXPECT_EQ(database.ask(u"SELECT 备注 FROM 备忘"_s), u"b"_s);
        isHexOf(text);

        for (const Qt::Key end : {Qt::Key_End, Qt::Key_Home}) {
            click(u"SingleRecord"_s);
            makeCurrent(u"内容"_s);
            QTest::keyClick(list, Qt::Key_F2);
            QTest::keyClick(lines(), end, Qt::ControlModifier);
            QTest::keyClicks(lines(), u"x"_s);
            QTest::keyClick(lines(), Qt::Key_Return);
            click(u"AllRecord"_s);
            isHexOf(end == Qt::Key_End ? text + u'x' : u'x' + text + u'x');
        }
    }
}

TEST_F(RecordEditing, ALineThatIsTakenOutLeavesTheOthers)
{
    database.run(
        u"CREATE TABLE 备忘 (ID INTEGER PRIMARY KEY, 内容 TEXT);"
        "INSERT INTO 备忘 VALUES (1, 'a' || char(13,10) || 'b' || char(10) || 'c' || char(13) || 'd')"_s);
    ASSERT_TRUE(load(u"SELECT * FROM 备忘"_s, {}));
    click(u"SingleRecord"_s);
    makeCurrent(u"内容"_s);
    QTest::keyClick(list, Qt::Key_F2);
    QTest::keyClick(lines(), Qt::Key_Home, Qt::ControlModifier);
    QTest::keyClick(lines(), Qt::Key_Down);
    QTest::keyClick(lines(), Qt::Key_Delete);
    QTest::keyClick(lines(), Qt::Key_Delete);
    QTest::keyClick(lines(), Qt::Key_Return);
    click(u"AllRecord"_s);
    EXPECT_EQ(database.ask(u"SELECT 内容 FROM 备忘"_s), u"a\r\nc\rd"_s);
}

TEST_F(RecordEditing, ATextThatIsTooLongForATextBoxIsNotEdited)
{
    database.run(u"CREATE TABLE 备忘 (ID INTEGER PRIMARY KEY, 内容 TEXT);"
                 "INSERT INTO 备忘 VALUES (1, replace(hex(zeroblob(5000001)), '00', 'ab'))"_s);
    ASSERT_TRUE(load(u"SELECT * FROM 备忘"_s, {}));
    click(u"SingleRecord"_s);
    makeCurrent(u"内容"_s);
    QTest::keyClick(list, Qt::Key_F2);
    EXPECT_FALSE(lines()->isVisible());
    EXPECT_FALSE(edit->isVisible());
    EXPECT_TRUE(QToolTip::text().contains(u"F3"_s)) << qPrintable(QToolTip::text());
    click(u"AllRecord"_s);
    EXPECT_EQ(database.ask(u"SELECT length(内容) FROM 备忘"_s), u"10000002"_s);
}

TEST_F(RecordEditing, ALongTextIsGivenUpWithEsc)
{
    database.run(u"CREATE TABLE 备忘 (ID INTEGER PRIMARY KEY, 内容 TEXT);"
                 "INSERT INTO 备忘 VALUES (1, 'a' || char(10) || 'b')"_s);
    ASSERT_TRUE(load(u"SELECT * FROM 备忘"_s, {}));
    click(u"SingleRecord"_s);
    makeCurrent(u"内容"_s);
    QTest::keyClick(list, 'x');
    ASSERT_TRUE(lines()->isVisible());
    EXPECT_EQ(lines()->toPlainText(), u"x"_s);
    QTest::keyClick(lines(), Qt::Key_Escape);
    EXPECT_FALSE(lines()->isVisible());
    EXPECT_TRUE(list->hasFocus());
    click(u"AllRecord"_s);
    EXPECT_EQ(database.ask(u"SELECT 内容 FROM 备忘"_s), u"a\nb"_s);
}

TEST_F(RecordEditing, AShortTextGoesOnInSeveralLines)
{
    ASSERT_TRUE(load());
    clickCell(3, 1);
    click(u"SingleRecord"_s);
    makeCurrent(u"城市"_s);
    QTest::keyClick(list, Qt::Key_F2);
    edit->setText(u"ab"_s);
    edit->setCursorPosition(1);
    QTest::keyClick(edit, Qt::Key_Return, Qt::ControlModifier);
    ASSERT_TRUE(lines()->isVisible());
    EXPECT_FALSE(edit->isVisible());
    EXPECT_TRUE(lines()->hasFocus());
    QTest::keyClick(lines(), Qt::Key_Return);
    click(u"AllRecord"_s);
    EXPECT_EQ(stored(u"城市"_s, 3), u"a\nb"_s);
}

TEST_F(RecordEditing, ANumberHasOneLine)
{
    ASSERT_TRUE(load());
    click(u"SingleRecord"_s);
    makeCurrent(u"Unit Price"_s);
    QTest::keyClick(list, Qt::Key_F2);
    QTest::keyClick(edit, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_FALSE(lines()->isVisible());
    EXPECT_TRUE(edit->isVisible());
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
