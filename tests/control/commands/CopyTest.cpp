// Copying from the grid, from the single-record list and as SQL.
#include "Shop.h"

#include "support/TestDatabase.h"

#include <QtCore/QMimeData>
#include <QtCore/QTimer>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>
#include <QtGui/QTextTable>
#include <QtTest/QTest>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QMenu>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

struct CopyTest : Shop
{
    CopyTest()
    {
        QGuiApplication::clipboard()->setText(u"before"_s);
        grid.findChild<QCheckBox *>(u"CheckSelAllRow"_s)->setChecked(false); // whatever the user left it at
    }

    static QString copied() { return QGuiApplication::clipboard()->text(); }
    static QString html()
    {
        const QMimeData *const data = QGuiApplication::clipboard()->mimeData();
        return data->hasHtml() ? data->html() : QString();
    }
    // From one cell to another, as a person does it with the mouse.
    void mark(int fromRow, const QString &from, int toRow, const QString &to)
    {
        clickCell(fromRow, grid.GetBindFieldIndex(from));
        const QModelIndex end = table->model()->index(toRow - 1, grid.GetBindFieldIndex(to) - 1);
        QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::ShiftModifier,
                          table->visualRect(end).center());
    }
    void pressCopy(QWidget *where, bool withHeadings = false)
    {
        where->setFocus();
        QTest::keyClick(where, Qt::Key_C,
                        withHeadings ? Qt::ControlModifier | Qt::ShiftModifier : Qt::ControlModifier);
    }
    void chooseInMenu(const QString &group, int item)
    {
        // The menu inside opens by the keyboard.
        QMenu *const menu = grid.findChild<QMenu *>(u"PopMnuData"_s + group);
        QAction *const action = grid.findChild<QAction *>(u"PopMnuDataAction%1"_s.arg(item));
        ASSERT_TRUE(menu && action && menu->actions().contains(action));
        action->trigger();
    }
};

} // namespace

TEST_F(CopyTest, OneCellIsCopiedAsItsTextAlone)
{
    ASSERT_TRUE(load(u"SELECT 1 AS A, 'say \"hi\"' || char(9) || 'x' AS B FROM 商品 WHERE ID = 1"_s, {}));
    clickCell(1, 2);
    pressCopy(table);
    EXPECT_EQ(copied(), u"say \"hi\"\tx"_s);
}

TEST_F(CopyTest, ARangeIsTextSeparatedByTabsInOneDataWithHtml)
{
    ASSERT_TRUE(load(u"SELECT ID, 名称, \"Unit Price\" FROM 商品 ORDER BY ID"_s, {}));
    mark(2, u"ID"_s, 3, u"名称"_s);
    pressCopy(table);
    const QStringList names = texts(u"名称"_s);
    EXPECT_EQ(copied(), u"2\t%1\r\n3\t%2\r\n"_s.arg(names.at(1), names.at(2)));
    EXPECT_TRUE(html().contains(
        u"<tr><td>2</td><td class=\"t\" sdnum=\"1033;0;@\">%1</td></tr>"_s.arg(names.at(1).toHtmlEscaped())))
        << qUtf8Printable(html());
    EXPECT_EQ(html().count(u"<tr>"_s), 2);

    pressCopy(table, true);
    EXPECT_EQ(copied(), u"ID\t名称\r\n2\t%1\r\n3\t%2\r\n"_s.arg(names.at(1), names.at(2)));
    EXPECT_TRUE(html().contains(u"<tr><th>ID</th><th>名称</th></tr>"_s));
}

TEST_F(CopyTest, WholeRowsAreCopiedWithoutHiddenColumns)
{
    ASSERT_TRUE(load());
    auto *wholeRows = grid.findChild<QCheckBox *>(u"CheckSelAllRow"_s);
    wholeRows->setChecked(true);
    click(u"Part"_s);
    mark(1, u"ID"_s, 2, u"ID"_s);
    pressCopy(table, true);
    const QStringList names = texts(u"名称"_s);
    EXPECT_EQ(copied(), u"ID\t名称\r\n1\t%1\r\n2\t%2\r\n"_s.arg(names.at(0), names.at(1)));
    wholeRows->setChecked(false);
}

TEST_F(CopyTest, TextsKeepTabsQuotesLineEndsAndMarkup)
{
    ASSERT_TRUE(load(u"SELECT 'a' || char(9) || 'b' AS T, 'c' || char(10) || '\"d\"' AS L, '\"e' AS Q, "
                     "'<b>&' AS M, NULL AS N FROM 商品 WHERE ID = 1"_s,
                     {}));
    clickCell(1, 1);
    table->setFocus();
    QTest::keyClick(table, Qt::Key_A, Qt::ControlModifier);
    pressCopy(table);
    EXPECT_EQ(copied(), u"\"a\tb\"\t\"c\n\"\"d\"\"\"\t\"\"\"e\"\t<b>&\t\r\n"_s);
    for (const QString &cell :
         {u"<pre>a\tb</pre>"_s, u"c<br>&quot;d&quot;"_s, u"&quot;e"_s, u"&lt;b&gt;&amp;"_s})
        EXPECT_TRUE(html().contains(u'>' + cell + u"</td>"_s)) << qUtf8Printable(html());
}

// What a spreadsheet would change is pasted as text; dates it can hold are dates, with the day's number in
// its calendar.
TEST_F(CopyTest, ASpreadsheetLosesNothingOfWhatIsPasted)
{
    database.run(u"CREATE TABLE 粘贴 (大 BIGINT, 小数 DECIMAL(20,2), 日 DATE, 刻 TIMESTAMP, 文 TEXT)"_s);
    database.run(u"INSERT INTO 粘贴 VALUES (12345678901234567, 1234.5, '2024-03-01', '2024-03-01 18:00:00', "
                 "'  a  b '), (-123456789012345, '=1+1', '1899-01-01', '2024-03-01 18:00:00.5', '007')"_s);
    ASSERT_TRUE(load(u"SELECT * FROM 粘贴"_s, {}));
    table->setFocus();
    QTest::keyClick(table, Qt::Key_A, Qt::ControlModifier);
    pressCopy(table);
    const QString text = u"<td class=\"t\" sdnum=\"1033;0;@\">"_s;
    const auto blanks = [](int count) {
        return u"<span style=\"mso-spacerun:yes\">"_s + QString(count, u' ') + u"</span>"_s;
    };
    const QStringList cells{
        text + u"12345678901234567</td>"_s,
        u"<td>1234.5</td>"_s,
        u"<td class=\"d\" sdval=\"45352\" sdnum=\"1033;0;YYYY-MM-DD\">2024-03-01</td>"_s,
        u"<td class=\"m\" sdval=\"45352.75\" sdnum=\"1033;0;YYYY-MM-DD HH:MM:SS\">2024-03-01 18:00:00</td>"_s,
        text + u"<pre>"_s + blanks(2) + u'a' + blanks(2) + u'b' + blanks(1) + u"</pre></td>"_s,
        u"<td>-123456789012345</td>"_s,
        text + u"=1+1</td>"_s,
        text + u"1899-01-01</td>"_s,
        text + texts(u"刻"_s).at(1) + u"</td>"_s,
        text + u"007</td>"_s,
    };
    for (const QString &cell : cells)
        EXPECT_TRUE(html().contains(cell)) << qUtf8Printable(cell) << '\n' << qUtf8Printable(html());
}

// As another program reads it.
TEST_F(CopyTest, BlanksStayTheCharactersThatTheyAre)
{
    const QStringList values{u"  空格 "_s, u"a  b"_s,    u" "_s,          u"a\tb"_s,
                             u"a b"_s,     u"\u00a0c"_s, u" <b> & \" "_s, u"x \n  y"_s};
    database.run(u"CREATE TABLE 空格 (ID INTEGER PRIMARY KEY, 文 TEXT)"_s);
    for (const QString &value : values)
        database.run(u"INSERT INTO 空格 (文) VALUES ('%1')"_s.arg(value));
    ASSERT_TRUE(load(u"SELECT 文 FROM 空格 ORDER BY ID"_s, {}));
    table->setFocus();
    QTest::keyClick(table, Qt::Key_A, Qt::ControlModifier);
    pressCopy(table);
    QTextDocument reader;
    reader.setHtml(html());
    const auto *const read = qobject_cast<QTextTable *>(reader.rootFrame()->childFrames().value(0));
    ASSERT_TRUE(read);
    ASSERT_EQ(read->rows(), values.size());
    for (int row = 0; row < read->rows(); ++row) {
        const QTextTableCell cell = read->cellAt(row, 0);
        QTextCursor all = cell.firstCursorPosition();
        all.setPosition(cell.lastCursorPosition().position(), QTextCursor::KeepAnchor);
        QString text = all.selectedText(); // its line breaks are separators
        text.replace(QChar::LineSeparator, u'\n').replace(QChar::ParagraphSeparator, u'\n');
        EXPECT_EQ(text, values.at(row)) << qUtf8Printable(html());
    }
}

TEST_F(CopyTest, TheListOfOneRecordIsCopiedAsItIsMarked)
{
    ASSERT_TRUE(load());
    clickCell(3, 1);
    click(u"SingleRecord"_s);
    clickCell(listedRow(u"名称"_s) + 1, 1);
    pressCopy(list);
    EXPECT_EQ(copied(), listed(u"名称"_s));
    pressCopy(list, true);
    EXPECT_EQ(copied(), u"名称\t%1\r\n"_s.arg(listed(u"名称"_s)));
    QTest::keyClick(list, Qt::Key_A, Qt::ControlModifier);
    pressCopy(list);
    EXPECT_TRUE(copied().startsWith(u"ID\t3\r\n名称\t"_s)) << qUtf8Printable(copied());
    EXPECT_EQ(copied().count(u"\r\n"_s), list->model()->rowCount());
}

TEST_F(CopyTest, ATypedValueIsCopiedBeforeItIsSaved)
{
    ASSERT_TRUE(load());
    clickCell(3, 1);
    click(u"SingleRecord"_s);
    clickCell(listedRow(u"名称"_s) + 1, 1);
    QTest::keyClick(list, Qt::Key_F2);
    edit->selectAll();
    QTest::keyClicks(edit, u"new name"_s);
    QTest::keyClick(edit, Qt::Key_Return);
    clickCell(listedRow(u"名称"_s) + 1, 1);
    pressCopy(list);
    EXPECT_EQ(copied(), u"new name"_s);
    chooseInMenu(u"CopyAs"_s, 20);
    EXPECT_EQ(copied(), u"('new name')"_s);
    QTest::keyClick(list, Qt::Key_Escape);
}

TEST_F(CopyTest, InsertStatementsBringTheSameRowsBack)
{
    ASSERT_TRUE(load(u"SELECT * FROM 商品 ORDER BY ID"_s, {}));
    mark(1, u"ID"_s, 12, u"ID"_s);
    chooseInMenu(u"CopyAs"_s, 19);
    EXPECT_EQ(copied().count(u"INSERT INTO 商品 ("_s), 12) << qUtf8Printable(copied());
    const QString everything = u"SELECT group_concat(ID || '|' || ifnull(名称,'~') || '|' || "
                               "ifnull(\"Unit Price\",'~') || '|' || ifnull(日期,'~') || '|' || "
                               "ifnull(停用,'~') || '|' || ifnull(hex(图片),'~'), ';') FROM 商品"_s;
    const QString before = database.ask(everything);
    EXPECT_FALSE(before.isEmpty());
    database.run(u"DELETE FROM 订单; DELETE FROM 商品"_s);
    EXPECT_EQ(database.ask(u"SELECT count(*) FROM 商品"_s), u"0"_s);
    database.run(copied());
    EXPECT_EQ(database.ask(everything), before);
}

TEST_F(CopyTest, AnInListHasEachValueOnceAndNoNull)
{
    ASSERT_TRUE(load(u"SELECT 1 AS K, 'O''Neil' AS V UNION ALL SELECT 2, NULL UNION ALL SELECT 3, 'b' "
                     "UNION ALL SELECT 4, 'b'"_s,
                     {}));
    mark(1, u"V"_s, 4, u"V"_s);
    chooseInMenu(u"CopyAs"_s, 20);
    EXPECT_EQ(copied(), u"('O''Neil', 'b')"_s);
    mark(2, u"K"_s, 3, u"K"_s);
    chooseInMenu(u"CopyAs"_s, 20);
    EXPECT_EQ(copied(), u"(2, 3)"_s);
}

TEST_F(CopyTest, TheMenuCopiesAfterTheFixedItems)
{
    ASSERT_TRUE(load());
    const QMenu *const menu = grid.findChild<QMenu *>(u"PopMnuData"_s);
    for (int index = 1; index <= 18; ++index)
        EXPECT_EQ(menu->actions().at(index - 1)->data().toInt(), index);
    EXPECT_TRUE(menu->actions().at(15)->isSeparator());
    clickCell(2, 1);
    choose(17, 2);
    EXPECT_EQ(copied(), u"2"_s);
    choose(18, 2);
    EXPECT_EQ(copied(), u"ID\r\n2\r\n"_s);
}

TEST_F(CopyTest, TheStatementLineStillCopiesItsStatement)
{
    ASSERT_TRUE(load());
    auto *line = grid.findChild<QWidget *>(u"lblStatement"_s);
    pressCopy(line);
    EXPECT_EQ(copied(), statementOfAll());
}

TEST_F(CopyTest, NothingIsCopiedWhereNothingIs)
{
    ASSERT_TRUE(load(u"SELECT * FROM 商品 WHERE ID < 0"_s, {}));
    pressCopy(table);
    chooseInMenu(u"CopyAs"_s, 19);
    EXPECT_EQ(copied(), u"before"_s);
    ASSERT_TRUE(load());
    grid.PutDisplayEable(false);
    chooseInMenu(u"CopyAs"_s, 20);
    EXPECT_EQ(copied(), u"before"_s);
}

TEST_F(CopyTest, AMillionRowsCanBeCancelled)
{
    ASSERT_TRUE(
        load(u"WITH N(I) AS (SELECT 1 UNION ALL SELECT I + 1 FROM N WHERE I < 999999) "
             "SELECT I, I AS A1, I AS A2, I AS A3, I AS A4, I AS A5, I AS A6, I AS A7, I AS A8, I AS A9, "
             "I AS B1, I AS B2, I AS B3, I AS B4, I AS B5, I AS B6 FROM N"_s,
             {}));
    table->setFocus();
    table->selectAll();
    QTimer cancelling;
    bool wasShown = false;
    QObject::connect(&cancelling, &QTimer::timeout, &grid, [&] {
        const auto *bar = grid.findChild<QProgressBar *>();
        for (auto *button : grid.findChildren<QPushButton *>()) {
            if (bar && button->text() == u"取消") {
                wasShown = true;
                QTest::mouseClick(button, Qt::LeftButton);
            }
        }
    });
    cancelling.start(0);
    pressCopy(table);
    // A fast machine may be done before the line shows.
    EXPECT_TRUE(wasShown ? copied() == u"before" : copied().size() > 1000000);
}
