// The lists and the calendar from which the filter builder lets values be picked.
#include "BuilderFixture.h"

#include "ado/Connection.h"
#include "filter/ValueReading.h"
#include "language/Language.h"
#include "support/WindowAnswers.h"

#include <QtCore/QElapsedTimer>
#include <QtGui/QAction>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>
#include <QtWidgets/QCalendarWidget>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QListView>
#include <QtWidgets/QTableView>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QTreeWidget>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

struct PickedValues : BuilderFixture
{
    // What the open list offers.
    static QStringList listed()
    {
        const auto *list = qobject_cast<QListView *>(QApplication::activePopupWidget());
        QStringList offered;
        for (int row = 0; list && row < list->model()->rowCount(); ++row)
            offered.append(list->model()->index(row, 0).data().toString());
        return offered;
    }
    // Makes a view the builder's table, whose values never come to an end.
    void offerEndlessValues()
    {
        database.run(u"CREATE VIEW 无尽 AS WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n)"
                     " SELECT CAST(i AS TEXT) AS 值 FROM n"_s);
        builder->SetCurrentTable(u"无尽"_s);
        builder->SetTableName(u"无尽"_s);
        choose("cmbField1", u"值"_s);
    }
};

} // namespace

TEST_F(PickedValues, TheValuesOfATextFieldAreReadWhenTheirListIsOpened)
{
    choose("cmbField1", u"城市"_s);
    database.run(u"INSERT INTO 订单 (城市) VALUES ('广州')"_s); // after the builder was prepared
    QTest::keyClick(&text("txtValue1"), Qt::Key_Down, Qt::AltModifier);
    auto *list = QApplication::activePopupWidget();
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->objectName(), u"lstValues"_s);
    const auto *model = static_cast<QListView *>(list)->model();
    QStringList offered;
    for (int row = 0; row < model->rowCount(); ++row)
        offered.append(model->index(row, 0).data().toString());
    EXPECT_EQ(offered, (QStringList{u"上海"_s, u"北京"_s, u"广州"_s}));
    QTest::keyClick(list, Qt::Key_Down);
    QTest::keyClick(list, Qt::Key_Down);
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_EQ(answer(), "城市 = '北京'");
}

TEST_F(PickedValues, CellsOfASpreadsheetArePasted)
{
    const auto paste = [this](const QString &copied) {
        QGuiApplication::clipboard()->setText(copied);
        QTest::keyClick(&text("txtValue1"), Qt::Key_V, Qt::ControlModifier);
    };
    fillRow(1, u"城市"_s, u"在列表中"_s, {});
    paste(u"北京\r\n上海\r\n"_s);
    EXPECT_EQ(answer(), "城市 IN ('北京', '上海')");
    choose("cmbOperator1", u"等于"_s);
    text("txtValue1").clear();
    paste(u"北京\r\n"_s);
    EXPECT_EQ(answer(), "城市 = '北京'") << "one cell ends with a line break, too";
}

TEST_F(PickedValues, TheArrowIsAsPaleAsTheValue)
{
    const auto arrow = [this](const char *name, QIcon::Mode mode) {
        return text(name).findChild<QAction *>(u"actOffer"_s)->icon().pixmap(16, mode).toImage();
    };
    press(dialog, "cmdAddRow");
    // The first row is made while the builder has no fields to offer yet, and is disabled.
    EXPECT_EQ(arrow("txtValue1", QIcon::Normal), arrow("txtValue2", QIcon::Normal));
    EXPECT_NE(arrow("txtValue1", QIcon::Normal), arrow("txtValue1", QIcon::Disabled));

    QPalette dark = dialog.palette();
    dark.setColor(QPalette::Text, Qt::white);
    const QImage before = arrow("txtValue1", QIcon::Normal);
    dialog.setPalette(dark);
    EXPECT_NE(arrow("txtValue1", QIcon::Normal), before) << "it follows the colours of the screen";
}

// Ticks values of a list one after another with the keyboard, and confirms.
WindowAnswers::Answer tick(const QStringList &values)
{
    return [values](QDialog &ticks) {
        auto *list = ticks.findChild<QTreeWidget *>();
        ASSERT_TRUE(list);
        for (const QString &value : values) {
            const auto find = [&] { return list->findItems(value, Qt::MatchExactly).value(0); };
            ASSERT_TRUE(QTest::qWaitFor([&] { return find() != nullptr; })) << qUtf8Printable(value);
            list->setFocus();
            list->setCurrentItem(find());
            QTest::keyClick(list, Qt::Key_Space);
        }
        QTest::mouseClick(&part<QAbstractButton>(ticks, "cmdOK"), Qt::LeftButton);
    };
}

TEST_F(PickedValues, TheValuesOfAListAreTicked)
{
    database.run(u"INSERT INTO 订单 (城市) VALUES ('广州'), ('厦门')"_s);
    choose("cmbField1", u"城市"_s);
    choose("cmbOperator1", u"在列表中"_s);
    {
        WindowAnswers dialogs({tick({u"上海"_s, u"厦门"_s})});
        QTest::keyClick(&text("txtValue1"), Qt::Key_F4);
    }
    EXPECT_EQ(answer(), "城市 IN ('上海', '厦门')");
    {
        WindowAnswers dialogs({tick({u"上海"_s})});
        QTest::keyClick(&text("txtValue1"), Qt::Key_F4);
    }
    EXPECT_EQ(answer(), "城市 IN ('厦门')") << "it begins with what is typed";
    {
        WindowAnswers dialogs({[](QDialog &ticks) { QTest::keyClick(&ticks, Qt::Key_Escape); }});
        QTest::keyClick(&text("txtValue1"), Qt::Key_F4);
    }
    EXPECT_EQ(answer(), "城市 IN ('厦门')");
}

TEST_F(PickedValues, YesAndNoAreOffered)
{
    choose("cmbField1", u"已付款"_s);
    QTest::keyClick(&text("txtValue1"), Qt::Key_F4);
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Down);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
    EXPECT_EQ(text("txtValue1").text(), u"是"_s);
    EXPECT_EQ(answer(), "已付款 <> 0");
}

TEST_F(PickedValues, ADayIsPickedFromACalendarAndKeepsTheTimeAfterIt)
{
    choose("cmbField1", u"发货时间"_s);
    type("txtValue1", u"2024-01-05 08:30"_s);
    QTest::keyClick(&text("txtValue1"), Qt::Key_Down, Qt::AltModifier);
    auto *calendar = qobject_cast<QCalendarWidget *>(QApplication::activePopupWidget());
    ASSERT_NE(calendar, nullptr);
    EXPECT_EQ(calendar->selectedDate(), QDate(2024, 1, 5));
    QTest::keyClick(calendar->focusWidget() ? calendar->focusWidget() : calendar, Qt::Key_Right);
    QTest::keyClick(calendar->focusWidget() ? calendar->focusWidget() : calendar, Qt::Key_Return);
    EXPECT_EQ(answer(), "COALESCE(CASE WHEN length(rtrim(发货时间, '0')) < 24 THEN "
                        "REPLACE(strftime('%Y-%m-%d %H:%M:%f', 发货时间), '.000', '') END, 发货时间)"
                        " = '2024-01-06 08:30:00'");
}

TEST_F(PickedValues, DaysThatMoveWithTheCalendarArePickedBelowIt)
{
    choose("cmbField1", u"下单日期"_s);
    QTest::keyClick(&text("txtValue1"), Qt::Key_F4);
    auto &calendar = part<QCalendarWidget>(dialog, "calDays");
    QStringList words;
    QToolButton *lastMonth = nullptr;
    for (auto *button : calendar.findChildren<QToolButton *>()) {
        words.append(button->text());
        if (button->text() == u"上月"_s)
            lastMonth = button;
    }
    EXPECT_TRUE(words.contains(u"今天"_s));
    EXPECT_TRUE(words.contains(u"最近 7 天"_s));
    ASSERT_NE(lastMonth, nullptr);
    QTest::mouseClick(lastMonth, Qt::LeftButton);
    EXPECT_FALSE(calendar.isVisible());
    EXPECT_EQ(text("txtValue1").text(), u"上月"_s);
    EXPECT_NE(answer(), "");
}

TEST_F(PickedValues, TheCalendarHasNoPicturesOfItsOwn)
{
    choose("cmbField1", u"下单日期"_s);
    QTest::keyClick(&text("txtValue1"), Qt::Key_F4);
    auto &calendar = part<QCalendarWidget>(dialog, "calDays");
    EXPECT_EQ(part<QToolButton>(dialog, "qt_calendar_prevmonth").arrowType(), Qt::LeftArrow);
    EXPECT_EQ(part<QToolButton>(dialog, "qt_calendar_nextmonth").arrowType(), Qt::RightArrow);
    calendar.close();
}

TEST_F(PickedValues, TheCalendarShowsAllWeeksInTheUsersLanguage)
{
    choose("cmbField1", u"下单日期"_s);
    QTest::keyClick(&text("txtValue1"), Qt::Key_F4);
    auto &calendar = part<QCalendarWidget>(dialog, "calDays");
    const auto &weeks = part<QTableView>(dialog, "qt_calendar_calendarview");
    EXPECT_GE(weeks.viewport()->height(), weeks.verticalHeader()->length());
    EXPECT_EQ(calendar.locale().language(), QLocale::Chinese);
    ASSERT_TRUE(KOVAVSFDataGridLib::Language::use(u"en"_s));
    QCoreApplication::processEvents();
    EXPECT_EQ(calendar.locale().language(), QLocale::English);
    EXPECT_EQ(calendar.firstDayOfWeek(), Qt::Monday) << "as in 本周";
    KOVAVSFDataGridLib::Language::use({});
    calendar.close();
}

TEST_F(PickedValues, TheCalendarStaysOnTheScreen)
{
    const QRect free = dialog.screen()->availableGeometry();
    choose("cmbField1", u"下单日期"_s);
    for (const QPoint corner : {free.topLeft(), free.bottomRight() - QPoint(300, 60)}) {
        dialog.move(corner);
        QTest::keyClick(&text("txtValue1"), Qt::Key_F4);
        const QWidget *calendar = QApplication::activePopupWidget();
        ASSERT_NE(calendar, nullptr);
        EXPECT_TRUE(free.contains(calendar->frameGeometry()));
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
        EXPECT_TRUE(dialog.isVisible());
    }
}

TEST_F(PickedValues, NumbersAndDaysHaveAListAsWell)
{
    choose("cmbField1", u"金额"_s);
    QTest::keyClick(&text("txtValue1"), Qt::Key_F4);
    EXPECT_EQ(listed(), (QStringList{u"5"_s, u"6"_s, u"7"_s}));
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Down);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
    EXPECT_EQ(answer(), "金额 = 5");
    choose("cmbField1", u"下单日期"_s);
    QTest::keyClick(&text("txtValue1"), Qt::Key_F4, Qt::ShiftModifier);
    EXPECT_EQ(listed(), QStringList(u"2024-01-05"_s));
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Down);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
    EXPECT_EQ(text("txtValue1").text(), u"2024-01-05"_s);
}

TEST_F(PickedValues, MoreThanTwoHundredAreLeftToALastEntryThatShowsTheirNumber)
{
    database.run(u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 2345)"
                 " INSERT INTO 订单 (编号, 城市) SELECT i, printf('城%05d', i) FROM n"_s);
    choose("cmbField1", u"城市"_s);
    QTest::keyClick(&text("txtValue1"), Qt::Key_F4);
    EXPECT_TRUE(QTest::qWaitFor([&] { return listed().value(200) == u"更多…（还有 2,147 个）"_s; }))
        << qUtf8Printable(listed().value(200));
    EXPECT_EQ(listed().size(), 201);
    const auto pickLast = [&] {
        auto *list = qobject_cast<QListView *>(QApplication::activePopupWidget());
        ASSERT_NE(list, nullptr);
        list->setCurrentIndex(list->model()->index(list->model()->rowCount() - 1, 0));
        QTest::keyClick(list, Qt::Key_Return);
    };
    pickLast();
    EXPECT_TRUE(QTest::qWaitFor([&] { return listed().value(2000) == u"更多…（还有 347 个）"_s; }));
    EXPECT_EQ(text("txtValue1").text(), QString()) << "it is no value";
    pickLast();
    EXPECT_TRUE(QTest::qWaitFor([&] { return listed().size() == 2347; })) << listed().size();
    pickLast();
    EXPECT_EQ(text("txtValue1").text(), u"城02345"_s);
}

TEST_F(PickedValues, AListThatTakesLongSaysSoAndCanBeCancelled)
{
    offerEndlessValues();
    type("txtValue1", u"京"_s);
    QTest::keyClick(&text("txtValue1"), Qt::Key_F4);
    ASSERT_EQ(listed(), QStringList(u"正在读取…（Esc 取消）"_s));
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(text("txtValue1").text(), u"京"_s);
    QTest::keyClick(&text("txtValue1"), Qt::Key_F4);
    EXPECT_NE(QApplication::activePopupWidget(), nullptr);
    dialog.close(); // ends the reading too
}

TEST_F(PickedValues, AreReadThroughASharedConnectionForAMomentOnly)
{
    auto shared = std::make_shared<ADODB::Connection>();
    shared->Open(database.connectionString());
    builder->SetConnection(shared);
    offerEndlessValues();
    QTest::keyClick(&text("txtValue1"), Qt::Key_F4);
    EXPECT_EQ(listed().value(0), u"1"_s);
    EXPECT_EQ(fault("lblNotice"), "1 秒内没有读完已有的值，只列出前面一部分记录中的值。");
}

// A field that never comes to an end, read with a short limit.
TEST(ValueReading, EndsAtItsLimitWithTheValuesOfSomeRecordsAndANote)
{
    const TestDatabase database(u"CREATE TABLE T (V TEXT)"_s);
    auto connection = std::make_shared<ADODB::Connection>();
    connection->Open(database.connectionString());
    const QString endless =
        u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) SELECT max(i) FROM n"_s;
    for (const bool hasSample : {true, false}) {
        KOVAVSFDataGridLib::ValueReading reading({connection, endless, endless,
                                                  hasSample ? u"SELECT 'a' UNION SELECT 'b'"_s : endless, 200,
                                                  2000});
        ASSERT_TRUE(reading.waitForValues(60000));
        EXPECT_EQ(reading.values().values, hasSample ? QStringList({u"a"_s, u"b"_s}) : QStringList());
        EXPECT_EQ(reading.values().note, hasSample ? u"2 秒内没有读完已有的值，只列出前面一部分记录中的值。"_s
                                                   : u"2 秒内没有读完已有的值，请直接输入。"_s);
        EXPECT_EQ(reading.failure(), QString());
    }
}

TEST(ValueReading, ReadsTheSampleWithinTheLimitToo)
{
    const TestDatabase database(u"CREATE TABLE T (V TEXT)"_s);
    auto connection = std::make_shared<ADODB::Connection>();
    connection->Open(database.connectionString());
    const QString endless =
        u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) SELECT max(i) FROM n"_s;
    QElapsedTimer sinceBegin;
    sinceBegin.start();
    KOVAVSFDataGridLib::ValueReading reading({connection, endless, endless, endless, 200, 200});
    ASSERT_TRUE(reading.waitForValues(60000));
    EXPECT_LT(sinceBegin.elapsed(), 1500) << "the rest is for a machine that is busy with other things";
}

TEST(ValueReading, ReportsWhyNothingCanBeRead)
{
    const TestDatabase database(u"CREATE TABLE T (V TEXT)"_s);
    auto connection = std::make_shared<ADODB::Connection>();
    connection->Open(database.connectionString());
    KOVAVSFDataGridLib::ValueReading reading({connection, u"SELECT X FROM T"_s, {}, {}, 200});
    ASSERT_TRUE(reading.waitForValues(60000));
    EXPECT_TRUE(reading.failure().contains(u"X"_s)) << qUtf8Printable(reading.failure());
}
