#include "filter/SetFilter.h"

#include "ado/Connection.h"
#include "support/Dialogs.h"
#include "support/ExpectedWarnings.h"
#include "support/TestDatabase.h"

#include <QtGui/QAction>
#include <QtGui/QScreen>
#include <QtWidgets/QCalendarWidget>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QCompleter>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListView>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QVBoxLayout>
#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

struct Builder : testing::Test
{
    Builder() : builder(new SetFilter(&dialog))
    {
        (new QVBoxLayout(&dialog))->addWidget(builder);
        builder->Initialize(u"当前使用数据表"_s, dbAccess);
        builder->SetConnectionString(database.connectionString());
        builder->SetCurrentTable(u"订单"_s);
        builder->SetTableName(u"订单"_s);
        dialog.resize(900, 500);
        present(dialog);
    }

    QComboBox &combo(const char *name) const { return part<QComboBox>(dialog, name); }
    QLineEdit &text(const char *name) const { return part<QLineEdit>(dialog, name); }
    bool exists(const char *name) const
    {
        return dialog.findChild<QWidget *>(QLatin1StringView(name)) != nullptr;
    }
    // Chooses an entry by its text, from the keyboard's point of view: the box then stands on it.
    void choose(const char *name, const QString &entry) const
    {
        const int index = combo(name).findText(entry);
        ASSERT_GE(index, 0) << qUtf8Printable(entry);
        combo(name).setCurrentIndex(index);
    }
    void type(const char *name, const QString &typed) const
    {
        text(name).setFocus();
        text(name).clear();
        compose(text(name), typed);
    }
    void fillRow(int number, const QString &field, const QString &op, const QString &value) const
    {
        const QByteArray suffix = QByteArray::number(number);
        choose("cmbField" + suffix, field);
        choose("cmbOperator" + suffix, op);
        if (!value.isEmpty())
            type("txtValue" + suffix, value);
    }
    std::string shown() const { return text("txtCondition").text().toStdString(); }
    std::string answer() { return builder->ConditionText().toStdString(); }
    std::string fault(const char *name) const { return part<QLabel>(dialog, name).text().toStdString(); }

    TestDatabase database{
        u"CREATE TABLE 订单 (编号 INTEGER, 城市 VARCHAR(20), 金额 NUMERIC(10,2), 下单日期 DATE,"
        " 发货时间 TIMESTAMP, 已付款 BOOLEAN, 图 BLOB);"
        "INSERT INTO 订单 VALUES (1, '北京', 5, '2024-01-05', NULL, 1, NULL),"
        " (2, '上海', 6, NULL, NULL, 0, NULL), (3, '北京', 7, NULL, NULL, 0, NULL);"_s};
    QDialog dialog;
    SetFilter *builder;
    // Said by the platform without a display when a list opens.
    ExpectedWarning noRaise{u"does not support raise()"_s};
    ExpectedWarning noGrab{u"does not support grabbing the keyboard"_s};
};

} // namespace

TEST_F(Builder, OffersTheTablesFieldsAndTheOperatorsOfTheirClass)
{
    EXPECT_EQ(fault("lblTable"), "当前使用数据表：订单");
    EXPECT_EQ(combo("cmbField1").count(), 7);
    EXPECT_EQ(combo("cmbField1").currentText(), u"编号"_s);
    EXPECT_EQ(combo("cmbOperator1").findText(u"包含"_s), -1);
    choose("cmbField1", u"城市"_s);
    EXPECT_GE(combo("cmbOperator1").findText(u"包含"_s), 0);
    choose("cmbField1", u"图"_s);
    EXPECT_EQ(combo("cmbOperator1").count(), 2);
    EXPECT_FALSE(text("txtValue1").isVisible());
}

TEST_F(Builder, ShowsTheConditionAsItGrows)
{
    EXPECT_EQ(shown(), "");
    fillRow(1, u"城市"_s, u"等于"_s, u"北京"_s);
    EXPECT_EQ(shown(), "城市 = '北京'");
    press(dialog, "cmdAddRow");
    EXPECT_EQ(dialog.focusWidget(), &combo("cmbField2"));
    EXPECT_EQ(shown(), "城市 = '北京'");
    fillRow(2, u"金额"_s, u"大于"_s, u"-5"_s);
    EXPECT_EQ(shown(), "城市 = '北京' AND 金额 > -5");
    choose("cmbJoin1", u"或者"_s);
    EXPECT_EQ(answer(), "(城市 = '北京' OR 金额 > -5)");
}

TEST_F(Builder, TheKeyboardAloneBuildsACondition)
{
    combo("cmbField1").setFocus();
    key(dialog, Qt::Key_Down);
    key(dialog, Qt::Key_Down); // 金额
    key(dialog, Qt::Key_Tab);
    key(dialog, Qt::Key_Down);
    key(dialog, Qt::Key_Down); // 大于
    key(dialog, Qt::Key_Tab);
    QTest::keyClicks(dialog.focusWidget(), u"100"_s);
    EXPECT_EQ(answer(), "金额 > 100");
}

TEST_F(Builder, AFieldIsFoundByTheBeginningOfItsNameInChineseToo)
{
    compose(combo("cmbField1"), u"下单"_s);
    EXPECT_EQ(combo("cmbField1").currentText(), u"下单日期"_s);
    EXPECT_EQ(part<QLineEdit>(dialog, "txtValue1").placeholderText(), u"例如 2024-01-31"_s);
}

TEST_F(Builder, BetweenTakesTwoValues)
{
    choose("cmbOperator1", u"介于"_s);
    EXPECT_TRUE(text("txtValue1b").isVisible());
    type("txtValue1", u"1"_s);
    EXPECT_EQ(shown(), "");
    type("txtValue1b", u"2"_s);
    EXPECT_EQ(shown(), "(编号 >= 1 AND 编号 <= 2)");
    choose("cmbOperator1", u"等于"_s);
    EXPECT_FALSE(text("txtValue1b").isVisible());
    EXPECT_EQ(shown(), "编号 = 1");
}

TEST_F(Builder, BracketsGroupConditions)
{
    press(dialog, "cmdAddRow");
    press(dialog, "cmdAddRow");
    fillRow(1, u"编号"_s, u"大于"_s, u"1"_s);
    fillRow(2, u"城市"_s, u"等于"_s, u"北京"_s);
    fillRow(3, u"城市"_s, u"等于"_s, u"上海"_s);
    choose("cmbJoin2", u"或者"_s);
    choose("cmbOpen2", u"("_s);
    EXPECT_EQ(answer(), "");
    EXPECT_EQ(fault("lblFault2"), "括号不配对。");
    choose("cmbClose3", u")"_s);
    EXPECT_EQ(fault("lblFault2"), "");
    EXPECT_EQ(answer(), "编号 > 1 AND (城市 = '北京' OR 城市 = '上海')");
}

TEST_F(Builder, DeletingARowRenumbersTheOthersAndKeepsTheirBrackets)
{
    press(dialog, "cmdAddRow");
    press(dialog, "cmdAddRow");
    fillRow(1, u"编号"_s, u"等于"_s, u"1"_s);
    fillRow(2, u"编号"_s, u"等于"_s, u"2"_s);
    fillRow(3, u"编号"_s, u"等于"_s, u"3"_s);
    choose("cmbOpen1", u"("_s);
    choose("cmbClose3", u")"_s);
    press(dialog, "cmdDeleteRow1");
    EXPECT_FALSE(exists("cmbField3"));
    EXPECT_EQ(text("txtValue1").text(), u"2"_s);
    EXPECT_EQ(answer(), "(编号 = 2 AND 编号 = 3)");
    press(dialog, "cmdDeleteRow2");
    EXPECT_EQ(answer(), "(编号 = 2)");
}

TEST_F(Builder, TheOnlyRowCanNotBeDeleted)
{
    EXPECT_FALSE(part(dialog, "cmdDeleteRow1").isEnabled());
    EXPECT_FALSE(combo("cmbJoin1").isVisible());
    press(dialog, "cmdAddRow");
    EXPECT_TRUE(part(dialog, "cmdDeleteRow1").isEnabled());
    EXPECT_TRUE(combo("cmbJoin1").isVisible());
}

TEST_F(Builder, TheNewestRowAndTheFirstFaultAreScrolledIntoView)
{
    for (int further = 0; further < 30; ++further)
        press(dialog, "cmdAddRow");
    EXPECT_TRUE(QTest::qWaitFor([this] { return combo("cmbField1").visibleRegion().isEmpty(); }));
    EXPECT_TRUE(QTest::qWaitFor([this] { return !combo("cmbField31").visibleRegion().isEmpty(); }));
    EXPECT_EQ(answer(), ""); // no row has a value
    EXPECT_TRUE(QTest::qWaitFor([this] { return !text("txtValue1").visibleRegion().isEmpty(); }));
}

TEST_F(Builder, ARowAddedAndDeletedAtOnceLeavesNothingBehind)
{
    press(dialog, "cmdAddRow");
    press(dialog, "cmdDeleteRow2");
    delete builder;
    QCoreApplication::processEvents();
    EXPECT_FALSE(exists("cmbField1"));
}

TEST_F(Builder, AMissingValueIsSaidOnlyOnceTheConditionIsWanted)
{
    text("txtValue1").setFocus();
    key(dialog, Qt::Key_Tab);
    EXPECT_EQ(fault("lblFault1"), "");
    EXPECT_EQ(answer(), "");
    EXPECT_EQ(fault("lblFault1"), "请输入值。");
    EXPECT_EQ(fault("lblNotice"), "请先改正标出的条件。");
    EXPECT_EQ(dialog.focusWidget(), &text("txtValue1"));
    QTest::keyClicks(dialog.focusWidget(), u"5"_s);
    EXPECT_EQ(fault("lblFault1"), "");
    EXPECT_EQ(answer(), "编号 = 5");
}

TEST_F(Builder, ATextInANumberFieldIsMarkedWhenItIsLeftAndNothingIsLost)
{
    type("txtValue1", u"五"_s);
    EXPECT_EQ(fault("lblFault1"), "");
    key(dialog, Qt::Key_Tab);
    EXPECT_EQ(fault("lblFault1"), "“五”不是数字。");
    EXPECT_TRUE(part(dialog, "lblFault1").isVisible());
    EXPECT_EQ(answer(), "");
    EXPECT_EQ(text("txtValue1").text(), u"五"_s);
}

TEST_F(Builder, AnEndBeforeItsStartIsMarked)
{
    choose("cmbField1", u"下单日期"_s);
    choose("cmbOperator1", u"介于"_s);
    type("txtValue1", u"2024-02-01"_s);
    type("txtValue1b", u"2024-01-01"_s);
    EXPECT_EQ(answer(), "");
    EXPECT_EQ(fault("lblFault1"), "结束值小于开始值。");
    EXPECT_EQ(dialog.focusWidget(), &text("txtValue1b"));
    text("txtValue1").clear();
    EXPECT_EQ(answer(), "");
    EXPECT_EQ(dialog.focusWidget(), &text("txtValue1"));
}

TEST_F(Builder, AnotherFieldKeepsOperatorAndValueWhereItCan)
{
    fillRow(1, u"编号"_s, u"小于"_s, u"5"_s);
    choose("cmbField1", u"金额"_s);
    EXPECT_EQ(shown(), "金额 < 5");
    choose("cmbField1", u"已付款"_s);
    EXPECT_EQ(combo("cmbOperator1").currentText(), u"等于"_s);
    EXPECT_EQ(text("txtValue1").text(), u"5"_s);
}

TEST_F(Builder, TheValuesOfATextFieldAreReadWhenTheirListIsOpened)
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

TEST_F(Builder, TheArrowOfAValueIsAsPaleAsTheValue)
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

TEST_F(Builder, PickedValuesAreAddedToAList)
{
    choose("cmbField1", u"城市"_s);
    choose("cmbOperator1", u"在列表中"_s);
    for (int picked = 0; picked < 2; ++picked) {
        QTest::keyClick(&text("txtValue1"), Qt::Key_F4);
        auto *list = QApplication::activePopupWidget();
        ASSERT_NE(list, nullptr);
        for (int down = 0; down <= picked; ++down)
            QTest::keyClick(list, Qt::Key_Down);
        QTest::keyClick(list, Qt::Key_Return);
    }
    EXPECT_EQ(answer(), "城市 IN ('上海', '北京')");
}

TEST_F(Builder, YesAndNoAreOffered)
{
    choose("cmbField1", u"已付款"_s);
    QTest::keyClick(&text("txtValue1"), Qt::Key_F4);
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Down);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
    EXPECT_EQ(text("txtValue1").text(), u"是"_s);
    EXPECT_EQ(answer(), "已付款 <> 0");
}

TEST_F(Builder, ADayIsPickedFromACalendarAndKeepsTheTimeBehindIt)
{
    choose("cmbField1", u"发货时间"_s);
    type("txtValue1", u"2024-01-05 08:30"_s);
    QTest::keyClick(&text("txtValue1"), Qt::Key_Down, Qt::AltModifier);
    auto *calendar = qobject_cast<QCalendarWidget *>(QApplication::activePopupWidget());
    ASSERT_NE(calendar, nullptr);
    EXPECT_EQ(calendar->selectedDate(), QDate(2024, 1, 5));
    QTest::keyClick(calendar->focusWidget() ? calendar->focusWidget() : calendar, Qt::Key_Right);
    QTest::keyClick(calendar->focusWidget() ? calendar->focusWidget() : calendar, Qt::Key_Return);
    EXPECT_EQ(answer(), "发货时间 = '2024-01-06 08:30:00'");
}

TEST_F(Builder, TheCalendarHasNoPicturesOfItsOwn)
{
    choose("cmbField1", u"下单日期"_s);
    QTest::keyClick(&text("txtValue1"), Qt::Key_F4);
    auto &calendar = part<QCalendarWidget>(dialog, "calDays");
    EXPECT_EQ(part<QToolButton>(dialog, "qt_calendar_prevmonth").arrowType(), Qt::LeftArrow);
    EXPECT_EQ(part<QToolButton>(dialog, "qt_calendar_nextmonth").arrowType(), Qt::RightArrow);
    calendar.close();
}

TEST_F(Builder, TheCalendarStaysOnTheScreen)
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

TEST_F(Builder, NumbersHaveNoListToOpen)
{
    choose("cmbField1", u"金额"_s);
    QTest::keyClick(&text("txtValue1"), Qt::Key_F4);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(Builder, AConditionTypedByHandCountsUntilTheRowsAreWantedBack)
{
    fillRow(1, u"编号"_s, u"等于"_s, u"1"_s);
    type("txtCondition", u"编号 = 1 or 金额 > 5"_s);
    EXPECT_EQ(answer(), "(编号 = 1 or 金额 > 5)");
    EXPECT_FALSE(text("txtValue1").isEnabled());
    EXPECT_FALSE(part(dialog, "cmdAddRow").isEnabled());
    press(dialog, "cmdBackToRows");
    EXPECT_TRUE(text("txtValue1").isEnabled());
    EXPECT_EQ(dialog.focusWidget(), &combo("cmbField1"));
    EXPECT_EQ(answer(), "编号 = 1");
}

TEST_F(Builder, AWrongConditionTypedByHandIsExplainedByTheDatabase)
{
    type("txtCondition", u"没有 = 1"_s);
    EXPECT_EQ(answer(), "");
    EXPECT_NE(fault("lblNotice").find("没有"), std::string::npos);
    EXPECT_EQ(shown(), "没有 = 1");
    type("txtCondition", u" "_s);
    EXPECT_EQ(answer(), "");
    EXPECT_EQ(fault("lblNotice"), "请输入条件。");
}

TEST_F(Builder, AConditionTypedByHandStaysOneConditionWhateverIsJoinedToIt)
{
    const struct
    {
        QString typed;
        const char *answer;
    } cases[] = {
        {u"编号 = 1 -- 说明"_s, "编号 = 1"},
        {u"编号 =\n1"_s, "编号 = 1"},
        {u"城市 = '--' or 编号 = 1"_s, "(城市 = '--' or 编号 = 1)"},
        {u"编号 = 1) or (编号 = 2"_s, ""},
        {u"编号 = 1 /* 说明"_s, ""},
        {u"编号 = 1 limit 1"_s, ""},
        {u"编号 = 1; select 1"_s, ""},
    };
    for (const auto &c : cases) {
        type("txtCondition", {});
        text("txtCondition").insert(c.typed);
        EXPECT_EQ(answer(), c.answer) << qUtf8Printable(c.typed);
        EXPECT_NE(fault("lblNotice"), "");
    }
    // The words by which the statement's sort is found, be it in a value.
    type("txtCondition", u"城市 = '1 Order by 2'"_s);
    EXPECT_EQ(answer(), "");
    EXPECT_EQ(fault("lblNotice"), "条件语句中不能出现“ORDER BY”。");
}

TEST_F(Builder, TheKeyboardWalksThroughItFromLeftToRight)
{
    press(dialog, "cmdAddRow");
    choose("cmbOperator1", u"介于"_s);
    EXPECT_TRUE(QTest::qWaitFor([this] { return combo("cmbField2").isVisible(); }));
    part(dialog, "cmbOpen1").setFocus();
    EXPECT_EQ(walkedByTab(dialog, 16),
              "cmbOpen1 cmbField1 cmbOperator1 txtValue1 txtValue1b cmbClose1 cmbJoin1 cmdDeleteRow1 "
              "cmbOpen2 cmbField2 cmbOperator2 txtValue2 cmbClose2 cmdDeleteRow2 cmdAddRow txtCondition");
    for (const char *name : {"cmbOpen1", "cmbField1", "cmbOperator1", "txtValue1", "txtValue1b", "cmbClose1",
                             "cmbJoin1", "cmdDeleteRow1", "txtCondition"})
        EXPECT_FALSE(part(dialog, name).accessibleName().isEmpty()) << name;
}

TEST(BuilderWithoutDatabase, SaysWhyThereAreNoFieldsAndStillTakesACondition)
{
    QDialog dialog;
    SetFilter builder(&dialog);
    builder.Initialize(u"表"_s, dbAccess);
    builder.SetConnectionString(u"Provider=SQLite;Data Source=/missing.db;Password=secret"_s);
    builder.SetTableName(u"T"_s);
    const QString notice = part<QLabel>(dialog, "lblNotice").text();
    EXPECT_TRUE(notice.startsWith(u"无法读取字段："_s));
    EXPECT_FALSE(notice.contains(u"secret"_s));
    EXPECT_TRUE(builder.ConditionText().isEmpty());
    EXPECT_EQ(part<QLabel>(dialog, "lblFault1").text(), u"没有可以筛选的字段。"_s);
    EXPECT_FALSE(part(dialog, "cmdAddRow").isEnabled());
    EXPECT_FALSE(part(dialog, "cmbField1").isEnabled());
    EXPECT_TRUE(part(dialog, "txtCondition").isEnabled());
}

TEST(BuilderWithoutTable, TakesAConditionAsItIsTyped)
{
    QDialog dialog;
    SetFilter builder(&dialog);
    present(dialog);
    QTest::keyClicks(&part<QLineEdit>(dialog, "txtCondition"), u"a = 1"_s);
    EXPECT_EQ(builder.ConditionText(), u"a = 1"_s);
}
