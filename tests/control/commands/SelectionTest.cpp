// The summary of the selected cells, and which of them is the current one.
#include "Shop.h"

#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtGui/QTextDocument>
#include <QtTest/QTest>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QMenu>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

struct SelectionTest : Shop
{
    SelectionTest() { wholeRows->setChecked(false); }

    void mark(int fromRow, int fromCol, int toRow, int toCol)
    {
        clickCell(fromRow, fromCol);
        QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::ShiftModifier,
                          table->visualRect(table->model()->index(toRow - 1, toCol - 1)).center());
    }
    // Once nothing is left to work out.
    QString shownSummary()
    {
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
        return summary->isVisible() ? summary->accessibleName() : QString();
    }

    QLabel *summary = grid.findChild<QLabel *>(u"lblSummary"_s);
    QCheckBox *wholeRows = grid.findChild<QCheckBox *>(u"CheckSelAllRow"_s);
    const QString numbers = u"SELECT ID, ID / 4.0 AS Q, 名称, 日期 FROM 商品 WHERE ID < 5 ORDER BY ID"_s;
};

} // namespace

TEST_F(SelectionTest, OneCellHasNoSummary)
{
    ASSERT_TRUE(load(numbers, {}));
    clickCell(2, 1);
    EXPECT_EQ(shownSummary(), QString());
}

// SQLite keeps no zeros of a decimal. A click copies the value.
TEST_F(SelectionTest, ShowsTheDecimalsOfTheFields)
{
    database.run(u"CREATE TABLE 价 (甲 DECIMAL(12,2), 乙 DOUBLE);"
                 "INSERT INTO 价 VALUES (0.2, 0.5), (3, 1), (NULL, NULL)"_s);
    ASSERT_TRUE(load(u"SELECT * FROM 价"_s, {}));
    mark(1, 1, 3, 1);
    EXPECT_EQ(shownSummary(), u"选定行数 3，计数 2，求和 3.20，平均 1.60，最小 0.20，最大 3.00"_s);
    EXPECT_TRUE(summary->text().contains(u">3.00<"_s)) << qPrintable(summary->text());
    Q_EMIT summary->linkActivated(u"5"_s);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"3"_s);
    mark(1, 2, 2, 2);
    EXPECT_EQ(shownSummary(), u"选定行数 2，计数 2，求和 1.5，平均 0.75，最小 0.5，最大 1"_s);
}

// SQLite stores them as doubles, which have 15 digits.
TEST_F(SelectionTest, TotalsOfDecimalsAreExactBeyondFifteenDigits)
{
    database.run(u"CREATE TABLE 价 (甲 DECIMAL(20,2), 乙 DECIMAL(15,2), 丙 DECIMAL(20,2), 丁 DOUBLE);"
                 "INSERT INTO 价 VALUES (9999999999999.99, 9999999999999.99, 9007199254740993, 1e300),"
                 "(9999999999999.99, 0.01, 0.5, 1), (9999999999999.99, 0.01, 1, 1)"_s);
    ASSERT_TRUE(load(u"SELECT * FROM 价"_s, {}));
    mark(1, 1, 3, 1);
    EXPECT_TRUE(
        shownSummary().startsWith(u"选定行数 3，计数 3，求和 29999999999999.97，平均 9999999999999.99，"_s))
        << qPrintable(shownSummary());
    mark(1, 2, 3, 2);
    EXPECT_TRUE(shownSummary().contains(u"求和 10000000000000.01，"_s)) << qPrintable(shownSummary());
    mark(1, 3, 3, 3);
    EXPECT_TRUE(shownSummary().contains(u"求和 9007199254740994.50，"_s)) << qPrintable(shownSummary());
    mark(1, 3, 3, 4);
    EXPECT_TRUE(shownSummary().contains(u"求和 1E+300，"_s)) << "no zeros behind it: it is rounded";
}

TEST_F(SelectionTest, SumsUpNumbersCountsTextsAndOrdersDates)
{
    ASSERT_TRUE(load(numbers, {}));
    mark(1, 1, 4, 1);
    EXPECT_EQ(shownSummary(), u"选定行数 4，计数 4，求和 10，平均 2.5，最小 1，最大 4"_s);
    mark(1, 1, 2, 2);
    EXPECT_EQ(shownSummary(), u"选定行数 2，计数 4，求和 3.75，平均 0.9375，最小 0.25，最大 2"_s);
    mark(1, 1, 1, 2);
    EXPECT_EQ(shownSummary(), u"计数 2，求和 1.25，平均 0.625，最小 0.25，最大 1"_s);
    mark(1, 3, 2, 3);
    EXPECT_EQ(shownSummary(), u"选定行数 2，计数 2"_s);
    QStringList dates = texts(u"日期"_s);
    dates.removeAll(QString());
    dates.sort();
    mark(1, 4, 4, 4);
    EXPECT_EQ(shownSummary(), u"选定行数 4，计数 %1，最早 %2，最晚 %3"_s.arg(dates.size())
                                  .arg(dates.constFirst(), dates.constLast()));
    clickCell(1, 1);
    EXPECT_EQ(shownSummary(), QString());
}

TEST_F(SelectionTest, OrdersDatesByTimeNotAsTexts)
{
    database.run(u"CREATE TABLE 时刻 (甲 TIMESTAMP);"
                 "INSERT INTO 时刻 VALUES ('2024-10-27 02:15:00+01'), ('2024-10-27 02:30:00+02'),"
                 "('2024-10-27 02:20:00+02'), ('later'), (NULL)"_s);
    ASSERT_TRUE(load(u"SELECT * FROM 时刻"_s, {}));
    mark(1, 1, 5, 1);
    EXPECT_EQ(shownSummary(),
              u"选定行数 5，计数 4，最早 2024-10-27 02:20:00+02，最晚 2024-10-27 02:15:00+01"_s);
}

TEST_F(SelectionTest, DistinguishesNumbersThatAreEqualAsDoubles)
{
    ASSERT_TRUE(load(u"SELECT 9007199254740992 + (ID = 1) AS A FROM 商品 WHERE ID < 3 ORDER BY ID"_s, {}));
    mark(1, 1, 2, 1);
    EXPECT_EQ(shownSummary(), u"选定行数 2，计数 2，求和 18014398509481985，平均 9007199254740993，"
                              "最小 9007199254740992，最大 9007199254740993"_s);
}

TEST_F(SelectionTest, OfWholeRowsTheCurrentColumnIsSummedUp)
{
    ASSERT_TRUE(load(numbers, {}));
    wholeRows->setChecked(true);
    mark(2, 1, 4, 1);
    EXPECT_EQ(shownSummary(), u"选定行数 3，ID：计数 3，求和 9，平均 3，最小 2，最大 4"_s);
    wholeRows->setChecked(false);
}

TEST_F(SelectionTest, AValueIsCopiedByAClickOrByTheKeyboard)
{
    ASSERT_TRUE(load(numbers, {}));
    mark(1, 1, 4, 1);
    ASSERT_NE(shownSummary(), QString());
    summary->setFocus();
    for (int i = 0; i < 3; ++i) // rows, count, sum
        QTest::keyClick(summary, Qt::Key_Tab);
    QTest::keyClick(summary, Qt::Key_Return);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"10"_s);
}

// A value is shown whole or not at all, and what is not shown is in a menu.
TEST_F(SelectionTest, EveryValueCanBeReadAndCopiedAtAnyWidth)
{
    ASSERT_TRUE(load(u"SELECT ID * 123456.75 AS 金额 FROM 商品 WHERE ID < 5"_s, {}));
    mark(1, 1, 4, 1);
    ASSERT_NE(shownSummary(), QString());
    auto *statement = grid.findChild<QLabel *>(u"lblStatement"_s);
    grid.resize(1600, 400);
    EXPECT_GE(summary->width(), summary->sizeHint().width());
    EXPECT_FALSE(summary->text().contains(u"…"_s));
    EXPECT_GT(statement->width(), 0);
    EXPECT_FALSE(statement->geometry().intersects(summary->geometry()));
    for (const int width : {1200, 1000, 900, 800, 700, 640}) {
        SCOPED_TRACE(width);
        grid.resize(width, 400);
        EXPECT_GT(summary->width(), 0);
        EXPECT_LE(summary->QLabel::sizeHint().width(), summary->width()) << "nothing of it is cut";
        EXPECT_LT(summary->geometry().right(), wholeRows->x());
        QTextDocument shown;
        shown.setDefaultFont(summary->font());
        shown.setDocumentMargin(0);
        shown.setHtml(summary->text());
        const QStringList values = summary->accessibleName().split(u'，');
        bool hasMore = false;
        for (const QString &value : values) {
            const bool isShown = shown.toPlainText().replace(QChar::Nbsp, u' ').contains(value);
            EXPECT_TRUE(isShown || summary->toolTip().contains(value)) << value.toStdString();
            hasMore = hasMore || !isShown;
        }
        ASSERT_EQ(shown.toPlainText().contains(u'…'), hasMore);
        if (!hasMore)
            continue;
        QTest::mouseClick(summary, Qt::LeftButton, {},
                          QPoint(static_cast<int>(shown.idealWidth()) - 4, summary->height() / 2));
        auto *menu = summary->findChild<QMenu *>(u"SummaryMenu"_s);
        ASSERT_TRUE(menu && menu->isVisible());
        ASSERT_EQ(menu->actions().size(), values.size());
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(menu->actions().last()).center());
        EXPECT_EQ(QGuiApplication::clipboard()->text(), u"493827"_s);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

TEST_F(SelectionTest, GoesWithTheResult)
{
    ASSERT_TRUE(load(numbers, {}));
    mark(1, 1, 4, 1);
    ASSERT_NE(shownSummary(), QString());
    grid.Clear();
    EXPECT_EQ(shownSummary(), QString());
    ASSERT_TRUE(load(numbers, {}));
    mark(1, 1, 4, 1);
    grid.ClearObject(); // before the summary is worked out
    EXPECT_EQ(shownSummary(), QString());
}

TEST_F(SelectionTest, DeletionNamesTheRecordWhenSeveralAreMarked)
{
    ASSERT_TRUE(load());
    mark(4, 2, 6, 2);
    messages.answerNext(QMessageBox::No);
    table->setFocus();
    QTest::keyClick(table, Qt::Key_Minus, Qt::ControlModifier);
    clickCell(5, 1);
    messages.answerNext(QMessageBox::No);
    choose(9, 5);
    EXPECT_EQ(messages.texts(),
              (QStringList{u"确实要删除该记录?\n第 6 行：ID = 6"_s, u"确实要删除该记录?"_s}));
}

TEST_F(SelectionTest, TheCurrentCellOfASelectionHasAFrame)
{
    ASSERT_TRUE(load(numbers, {}));
    wholeRows->setChecked(true);
    mark(1, 1, 3, 2);
    const auto isFramed = [this](int row, int col) {
        const QRect cell = table->visualRect(table->model()->index(row - 1, col - 1));
        const QImage picture = table->viewport()->grab().toImage();
        const QColor frame = table->palette().color(QPalette::HighlightedText);
        int framed = 0;
        for (int x = cell.left() + 4; x < cell.right() - 4; ++x)
            framed += picture.pixelColor(x, cell.top() + 1) == frame ? 1 : 0;
        return framed > cell.width() / 2;
    };
    EXPECT_TRUE(isFramed(3, 2));
    EXPECT_FALSE(isFramed(3, 1));
    EXPECT_FALSE(isFramed(1, 2));
    wholeRows->setChecked(false);
}

TEST_F(SelectionTest, HeadingsAreOverTheirTextsAndNumbers)
{
    ASSERT_TRUE(load());
    const auto side = [this](const QString &field) {
        const QVariant alignment = table->model()->headerData(grid.GetBindFieldIndex(field) - 1,
                                                              Qt::Horizontal, Qt::TextAlignmentRole);
        return alignment.value<Qt::Alignment>() & Qt::AlignHorizontal_Mask;
    };
    EXPECT_EQ(side(u"ID"_s), Qt::AlignRight);
    EXPECT_EQ(side(u"名称"_s), Qt::AlignLeft);
}
