// What the control looks like at different sizes and with different results.
#include "Shop.h"

#include <QtCore/QUuid>
#include <QtGui/QHelpEvent>
#include <QtGui/QScreen>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QFrame>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QToolTip>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

struct Looks : Shop
{
    Qt::ToolButtonStyle styleOf(const QString &key) const
    {
        return qobject_cast<QToolButton *>(toolbar->widgetForAction(button(key)))->toolButtonStyle();
    }
    QLabel &line() const { return *grid.findChild<QLabel *>(u"lblStatement"_s); }
    // Views lay their headings out in an event of their own.
    int rowHeadingWidth() const
    {
        QCoreApplication::processEvents();
        return table->verticalHeader()->width();
    }
    int width(const QString &heading) const
    {
        for (int section = 0; section < table->model()->columnCount(); ++section) {
            if (table->model()->headerData(section, Qt::Horizontal).toString() == heading)
                return table->columnWidth(section);
        }
        return -1;
    }
};

} // namespace

TEST_F(Looks, TheLineBelowTheGridGroupsDigitsAroundItsFixedTexts)
{
    ASSERT_TRUE(
        load(u"WITH N(I) AS (SELECT 1 UNION ALL SELECT I + 1 FROM N WHERE I < 12345) SELECT I FROM N"_s, {}));
    EXPECT_TRUE(line().text().startsWith(u"第 1 条，共 12,345 条"_s)) << qPrintable(line().text());
    EXPECT_TRUE(pageLabel->text().endsWith(u"只显示999999条以内的记录"_s));
}

TEST_F(Looks, DividersSeparateThePartsOfTheLineBelow)
{
    ASSERT_TRUE(load());
    grid.resize(1200, 500);
    QList<int> places;
    for (const QFrame *frame : grid.findChildren<QFrame *>()) {
        if (frame->frameShape() == QFrame::VLine && frame->isVisible())
            places.append(frame->x());
    }
    std::sort(places.begin(), places.end());
    ASSERT_EQ(places.size(), 2);
    EXPECT_GT(places[0], pageLabel->geometry().right());
    EXPECT_LT(places[0], line().x());
    EXPECT_GT(places[1], line().geometry().right());
}

TEST_F(Looks, SimilarButtonsHaveCaptionsWhereThereIsRoom)
{
    grid.resize(1200, 500);
    ASSERT_TRUE(load());
    for (const QString &key :
         {u"Filter"_s, u"QuickFilter"_s, u"FromResult"_s, u"ToFullTable"_s, u"ToPreview"_s, u"ToOrigin"_s})
        EXPECT_EQ(styleOf(key), Qt::ToolButtonTextBesideIcon) << qPrintable(key);
    EXPECT_EQ(styleOf(u"First"_s), Qt::ToolButtonIconOnly);
    const int height = toolbar->height();
    for (int width = 1200; width > 300; width -= 7) {
        grid.resize(width, 500);
        EXPECT_EQ(toolbar->height(), height) << width;
        const auto *last = toolbar->widgetForAction(button(u"FullScreen"_s));
        EXPECT_TRUE(styleOf(u"Filter"_s) == Qt::ToolButtonIconOnly ||
                    last->geometry().right() <= toolbar->width())
            << "captions must not push buttons out at " << width;
    }
    EXPECT_EQ(styleOf(u"Filter"_s), Qt::ToolButtonIconOnly);
    grid.resize(1200, 500);
    EXPECT_EQ(styleOf(u"Filter"_s), Qt::ToolButtonTextBesideIcon);
}

TEST_F(Looks, CaptionsFollowTheLanguage)
{
    ASSERT_TRUE(load());
    const QWidget *const last = toolbar->widgetForAction(button(u"FullScreen"_s));
    for (int width = 1200; width > 500; width -= 7) {
        grid.resize(width, 500);
        for (const QString &language : {u"en"_s, u"zh-CN"_s}) {
            grid.PutLanguage(language);
            QCoreApplication::processEvents();
            const Qt::ToolButtonStyle style = styleOf(u"Filter"_s);
            const std::string where = std::to_string(width) + " pixels, " + qUtf8Printable(language);
            EXPECT_TRUE(style == Qt::ToolButtonIconOnly || last->geometry().right() <= toolbar->width())
                << "captions must not push buttons out at " << where;
            grid.resize(width - 300, 500);
            grid.resize(width, 500);
            EXPECT_FALSE(style == Qt::ToolButtonIconOnly && styleOf(u"Filter"_s) != style)
                << "there was room for captions at " << where;
        }
    }
    grid.PutLanguage({});
}

TEST_F(Looks, NoToolTipIsHigherThanAThirdOfTheScreen)
{
    QString statement = u"SELECT ID"_s;
    for (int i = 0; i < 400; ++i)
        statement += u",\n'some text' AS 第%1列"_s.arg(i);
    ASSERT_TRUE(load(statement + u" FROM 商品"_s, {}));
    QHelpEvent asking(QEvent::ToolTip, {2, 2}, line().mapToGlobal(QPoint(2, 2)));
    QCoreApplication::sendEvent(&line(), &asking);
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto tip = std::find_if(windows.cbegin(), windows.cend(), [](const QWidget *window) {
        return window->inherits("QTipLabel") && window->isVisible();
    });
    ASSERT_NE(tip, windows.cend());
    EXPECT_GT((*tip)->height(), 40);
    EXPECT_LE((*tip)->height(), grid.screen()->availableSize().height() / 3);
    EXPECT_TRUE(QToolTip::text().contains(u'…'));
    QToolTip::hideText();
    EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
}

TEST_F(Looks, TheToolTipOfALongTextWithoutBlanksIsNotHigherEither)
{
    for (const QString &text : {u"'长'"_s, u"'W'"_s, u"'a b '"_s, u"'行' || char(10)"_s}) {
        SCOPED_TRACE(text.toStdString());
        ASSERT_TRUE(load(u"SELECT replace(printf('%3000s', ''), ' ', "_s + text + u") AS A FROM 商品"_s, {}));
        const QPoint place = table->visualRect(table->model()->index(0, 0)).center();
        QHelpEvent asking(QEvent::ToolTip, place, table->viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(table->viewport(), &asking);
        const QWidgetList windows = QApplication::topLevelWidgets();
        const auto tip = std::ranges::find_if(windows, [](const QWidget *window) {
            return window->inherits("QTipLabel") && window->isVisible();
        });
        ASSERT_NE(tip, windows.cend());
        const int third = grid.screen()->availableSize().height() / 3;
        EXPECT_LE((*tip)->height(), third);
        EXPECT_GT((*tip)->height(), third / 2) << "as much as there is room for";
        QToolTip::hideText();
        EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
    }
}

// SQLite keeps no zeros of a decimal. What hosts read stays the text of the value.
TEST_F(Looks, NumbersAreShownWithTheDecimalsOfTheirField)
{
    database.run(u"CREATE TABLE 价 (甲 DECIMAL(12,2), 乙 DOUBLE, 丙 DECIMAL(12,2));"
                 "INSERT INTO 价 VALUES (0.2, 0.2, '面议'), (10, 10, 1.125), (NULL, NULL, 3)"_s);
    ASSERT_TRUE(load(u"SELECT * FROM 价"_s, {}));
    EXPECT_EQ(texts(u"甲"_s), (QStringList{u"0.2"_s, u"10"_s, QString()}));
    EXPECT_EQ(grid.CellTextL(1, 1), u"0.2"_s);
    const auto spoken = [this](int row, int col) {
        return table->model()->index(row, col).data(Qt::AccessibleTextRole).toString();
    };
    EXPECT_EQ(spoken(0, 0), u"0.20"_s) << "a screen reader says what is shown";
    EXPECT_EQ(spoken(1, 0), u"10.00"_s);
    EXPECT_EQ(spoken(2, 0), u"空值"_s);
    EXPECT_EQ(spoken(0, 1), u"0.2"_s);
    EXPECT_EQ(spoken(0, 2), u"面议"_s);
    const auto cell = [this](int row, int col) {
        table->clearSelection();
        return table->viewport()->grab(table->visualRect(table->model()->index(row, col))).toImage();
    };
    const auto widthOfText = [](const QImage &image) {
        int left = image.width();
        for (int x = image.width() - 3; x >= 2; --x) {
            for (int y = 3; y < image.height() - 3; ++y) {
                if (qGray(image.pixel(x, y)) < 128)
                    left = x;
            }
        }
        return image.width() - left;
    };
    clickCell(3, 1); // the others are neither current nor selected
    grid.findChild<QAbstractButton *>(u"CheckSelAllRow"_s)->setChecked(false);
    EXPECT_GT(widthOfText(cell(0, 0)), widthOfText(cell(0, 1))) << "0.20 beside 0.2";
    EXPECT_GT(widthOfText(cell(1, 0)), widthOfText(cell(1, 1))) << "10.00 beside 10";
    EXPECT_GT(widthOfText(cell(1, 2)), widthOfText(cell(2, 2))) << "no digit of 1.125 is hidden";
    EXPECT_FALSE(grid.SaveLayout().contains(u"format"_s));
    // What is found is what is seen, or what is stored.
    QTest::keyClick(table, Qt::Key_G, Qt::ControlModifier);
    auto *words = grid.findChild<QLineEdit *>(u"txtFindShown"_s);
    auto *found = grid.findChild<QLabel *>(u"lblFound"_s);
    for (const auto &[word, count] :
         {std::pair{u"0.20"_s, u"1"_s}, std::pair{u"10.00"_s, u"1"_s}, std::pair{u"3.00"_s, u"1"_s}}) {
        words->setText(word);
        EXPECT_TRUE(QTest::qWaitFor([&] { return found->text().contains(count); }))
            << qPrintable(word + u": "_s + found->text());
    }
}

TEST_F(Looks, ASingleRecordShowsThoseDecimalsAndKeepsTheValueWhenNothingIsTyped)
{
    database.run(u"CREATE TABLE 价 (ID INTEGER PRIMARY KEY, 甲 DECIMAL(12,2), 乙 TEXT);"
                 "INSERT INTO 价 VALUES (1, 0.1 + 0.2, '')"_s);
    ASSERT_TRUE(load(u"SELECT * FROM 价"_s, {}));
    click(u"SingleRecord"_s);
    EXPECT_EQ(listed(u"甲"_s), u"0.3"_s);
    // Ends the edit of one field with Enter, and saves another.
    const auto type = [this](const QString &field, const QString &text) {
        makeCurrent(field);
        QTest::keyClick(list, Qt::Key_F2);
        if (field == u"甲"_s) {
            EXPECT_EQ(edit->text(), u"0.30"_s);
        }
        if (!text.isEmpty())
            edit->setText(text);
        QTest::keyClick(edit, Qt::Key_Return);
    };
    const auto stored = [&](const QString &text) {
        type(u"甲"_s, text);
        type(u"乙"_s, u"saved as "_s + text);
        QTest::keyClick(list, Qt::Key_S, Qt::ControlModifier);
        return database.ask(u"SELECT (甲 = 0.1 + 0.2) || 乙 FROM 价"_s);
    };
    EXPECT_EQ(stored({}), u"1saved as "_s) << "nothing was typed";
    EXPECT_EQ(stored(u"0.3"_s), u"1saved as 0.3"_s) << "the value's own text";
    EXPECT_EQ(stored(u"0.4"_s), u"0saved as 0.4"_s);
    makeCurrent(u"甲"_s);
    EXPECT_EQ(list->currentIndex().siblingAtColumn(1).data(Qt::AccessibleTextRole).toString(), u"0.40"_s);
    EXPECT_EQ(database.ask(u"SELECT 甲 = 0.4 FROM 价"_s), u"1"_s);
}

TEST_F(Looks, RowHeadingsHaveRoomForThreeDigits)
{
    ASSERT_TRUE(load(u"SELECT 1 AS A"_s, {}));
    const int few = rowHeadingWidth();
    ASSERT_TRUE(
        load(u"WITH N(I) AS (SELECT 1 UNION ALL SELECT I + 1 FROM N WHERE I < 999) SELECT I FROM N"_s, {}));
    EXPECT_EQ(rowHeadingWidth(), few);
    ASSERT_TRUE(
        load(u"WITH N(I) AS (SELECT 1 UNION ALL SELECT I + 1 FROM N WHERE I < 9999) SELECT I FROM N"_s, {}));
    EXPECT_GT(rowHeadingWidth(), few);
}

TEST_F(Looks, WhereLayoutsAreKeptTheFirstWidthsFitTheContents)
{
    const QString statement = u"SELECT ID, 名称, 'a rather long text in each record' AS 说明 FROM 商品"_s;
    ASSERT_TRUE(load(statement, {}));
    EXPECT_EQ(width(u"ID"_s), width(u"说明"_s)) << "the default width";
    grid.PutLayoutKey(QUuid::createUuid().toString());
    ASSERT_TRUE(load(statement, {}));
    EXPECT_LT(width(u"ID"_s), width(u"名称"_s));
    EXPECT_GE(width(u"说明"_s),
              table->fontMetrics().horizontalAdvance(u"a rather long text in each record"_s));
}
