// The values that the editor of a single record's field offers to pick.
#include "Shop.h"

#include <QtTest/QTest>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QCompleter>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

class RecordValues : public Shop
{
protected:
    // Opens the editor over a field of the first record of a table.
    void editFirst(const QString &tableName, const QString &field)
    {
        ASSERT_TRUE(load(u"SELECT * FROM "_s + tableName, QString()));
        clickCell(1, 1);
        click(u"SingleRecord"_s);
        makeCurrent(field);
        QTest::keyClick(list, Qt::Key_F2);
        ASSERT_TRUE(edit->isVisible());
    }
    // Presses the key that opens the list; what is in it.
    QStringList offered(Qt::Key key = Qt::Key_F4, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(edit, key, modifiers);
        const auto *const completer = edit->findChild<QCompleter *>();
        QStringList entries;
        for (int row = 0; completer && row < completer->model()->rowCount(); ++row)
            entries.append(completer->model()->index(row, 0).data().toString());
        return entries;
    }
    void pick(int row)
    {
        QAbstractItemView *const popup = edit->findChild<QCompleter *>()->popup();
        ASSERT_TRUE(popup->isVisible());
        popup->setCurrentIndex(popup->model()->index(row, 0));
        QTest::keyClick(popup, Qt::Key_Return);
    }
};

} // namespace

TEST_F(RecordValues, OfAReferenceAreTheKeysWithWhatDescribesThem)
{
    editFirst(u"订单"_s, u"商品"_s);
    const QStringList keys = offered();
    ASSERT_EQ(keys.size(), records);
    EXPECT_EQ(keys.at(0), u"1　龙井茶"_s);
    EXPECT_EQ(keys.at(11), u"12　白茶"_s);
    pick(11);
    EXPECT_EQ(edit->text(), u"12"_s);
    QTest::keyClick(edit, Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(database.ask(u"SELECT 商品 FROM 订单"_s), u"12"_s);
}

TEST_F(RecordValues, OfAReferenceAreFoundByTheKeyAndByTheDescription)
{
    editFirst(u"订单"_s, u"商品"_s);
    edit->setText(u"茶"_s);
    EXPECT_EQ(offered(), QStringList({u"1　龙井茶"_s, u"2　普洱茶"_s, u"4　花茶"_s, u"10　O'Neil 红茶"_s,
                                      u"11　绿茶"_s, u"12　白茶"_s}));
    QTest::keyClick(edit->findChild<QCompleter *>()->popup(), Qt::Key_Escape);
    edit->setText(u"11"_s);
    EXPECT_EQ(offered(), QStringList{u"11　绿茶"_s});
    QTest::keyClick(edit->findChild<QCompleter *>()->popup(), Qt::Key_Escape);
    edit->setText(u"没有"_s);
    EXPECT_EQ(offered(), QStringList{u"没有包含“没有”的值"_s});
}

TEST_F(RecordValues, OfAReferenceToADayHaveAButtonOfTheirOwn)
{
    database.run(u"CREATE TABLE 假日 (日 DATE PRIMARY KEY, 名 VARCHAR(10));"
                 "INSERT INTO 假日 VALUES ('2024-10-01', '国庆'), ('2024-01-01', '元旦');"
                 "CREATE TABLE 值班 (ID INTEGER PRIMARY KEY, 日 DATE REFERENCES 假日);"
                 "INSERT INTO 值班 VALUES (1, '2024-01-01');"_s);
    editFirst(u"值班"_s, u"日"_s);
    EXPECT_EQ(offered(Qt::Key_F4, Qt::ShiftModifier),
              QStringList({u"2024-01-01　元旦"_s, u"2024-10-01　国庆"_s}));
    pick(1);
    EXPECT_EQ(edit->text(), u"2024-10-01"_s);
}

TEST_F(RecordValues, OfAReferenceWithoutADescriptionAreTheKeysAlone)
{
    database.run(
        u"CREATE TABLE 级 (级 INTEGER PRIMARY KEY, 价 NUMERIC); INSERT INTO 级 VALUES (10, 1), (9, 2);"
        "CREATE TABLE 客 (ID INTEGER PRIMARY KEY, 级 INTEGER REFERENCES 级(级));"
        "INSERT INTO 客 VALUES (1, 9);"_s);
    editFirst(u"客"_s, u"级"_s);
    EXPECT_EQ(offered(), QStringList({u"9"_s, u"10"_s}));
}

TEST_F(RecordValues, OfAColumnWithFewAreAll)
{
    editFirst(u"商品"_s, u"城市"_s);
    QStringList cities = texts(u"城市"_s);
    cities.removeAll(QString());
    cities.removeDuplicates();
    cities.sort();
    EXPECT_EQ(offered(), cities);
}

TEST_F(RecordValues, OfAColumnWithManyAreTheFirstAndTheRestIsFoundByTyping)
{
    database.run(
        u"CREATE TABLE 多 (ID INTEGER PRIMARY KEY, 值 VARCHAR(20)); INSERT INTO 多 WITH RECURSIVE n(i) AS"
        " (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 500) SELECT i, 'v' || i FROM n"_s);
    editFirst(u"多"_s, u"值"_s);
    const QStringList first = offered();
    ASSERT_EQ(first.size(), 201);
    EXPECT_EQ(first.constLast(), u"（还有更多，输入几个字后再打开列表查找）"_s);
    pick(200);
    EXPECT_EQ(edit->text(), u"v1"_s) << "that was no value";
    edit->setText(u"V49"_s);
    EXPECT_EQ(offered(), QStringList({u"v49"_s, u"v490"_s, u"v491"_s, u"v492"_s, u"v493"_s, u"v494"_s,
                                      u"v495"_s, u"v496"_s, u"v497"_s, u"v498"_s, u"v499"_s}));
    pick(10);
    EXPECT_EQ(edit->text(), u"v499"_s);
}

TEST_F(RecordValues, OfAColumnWithoutAnyAreSaidToBeNone)
{
    database.run(
        u"CREATE TABLE 空 (ID INTEGER PRIMARY KEY, 值 VARCHAR(20)); INSERT INTO 空 VALUES (1, NULL);"_s);
    editFirst(u"空"_s, u"值"_s);
    EXPECT_EQ(offered(), QStringList{u"该字段还没有任何值。"_s});
}
