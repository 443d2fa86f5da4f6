// The user's changes to a record are never lost, in whatever way its result is closed.
#include "Shop.h"

#include "support/Dialogs.h"
#include "support/MessageAnswers.h"

#include <QtTest/QTest>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QTableView>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

// A way in which a host or the user leaves a result.
struct Way
{
    const char *name;
    void (*leave)(KOVAVSFDataGrid &grid);
};

class Unsaved : public Shop, public testing::WithParamInterface<Way>
{
protected:
    QString name() const { return database.ask(u"SELECT 名称 FROM 商品 WHERE ID = 1"_s); }
    QString status() { return grid.findChild<QLabel *>(u"lblStatement"_s)->text(); }
    // Types into a field of the first record; Enter confirms it.
    void write(const QString &field, const QString &text, bool isConfirmed)
    {
        EXPECT_TRUE(writeListed(field, text, isConfirmed));
    }
    void refuse()
    {
        database.run(u"CREATE TRIGGER No BEFORE UPDATE ON 商品 BEGIN SELECT RAISE(ABORT, 'never'); END"_s);
    }
};

INSTANTIATE_TEST_SUITE_P(Ways, Unsaved,
                         testing::Values(Way{"Clear", [](KOVAVSFDataGrid &grid) { grid.Clear(); }},
                                         Way{"ClearAll", [](KOVAVSFDataGrid &grid) { grid.ClearAll(); }},
                                         Way{"ClearObject",
                                             [](KOVAVSFDataGrid &grid) { grid.ClearObject(); }},
                                         Way{"IsLoadData", [](KOVAVSFDataGrid &grid) { grid.IsLoadData(); }},
                                         Way{"Close", [](KOVAVSFDataGrid &grid) { grid.window()->close(); }}),
                         [](const auto &way) { return std::string(way.param.name); });

} // namespace

TEST_P(Unsaved, AConfirmedValueIsSaved)
{
    ASSERT_TRUE(load());
    write(u"名称"_s, u"新茶"_s, true);
    EXPECT_TRUE(status().contains(u"（未保存）"_s)) << qUtf8Printable(status());
    GetParam().leave(grid);
    EXPECT_EQ(name(), u"新茶"_s);
    EXPECT_TRUE(messages.texts().isEmpty());
}

TEST_P(Unsaved, ATypedValueIsConfirmedFirst)
{
    ASSERT_TRUE(load());
    write(u"名称"_s, u"新茶"_s, false);
    GetParam().leave(grid);
    EXPECT_EQ(name(), u"新茶"_s);
}

TEST_P(Unsaved, ARefusedChangeStaysWhenTheUserStays)
{
    ASSERT_TRUE(load());
    const QString before = name();
    write(u"名称"_s, u"新茶"_s, true);
    refuse();
    messages.answerNext(QMessageBox::Cancel);
    GetParam().leave(grid);
    ASSERT_EQ(messages.shown().size(), 1u);
    EXPECT_TRUE(messages.texts().front().startsWith(u"记录没有保存："_s));
    EXPECT_EQ(messages.shown().front().buttons,
              QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
    EXPECT_EQ(name(), before);
    EXPECT_TRUE(grid.isVisible());
    ASSERT_TRUE(isSingleRecordShown());
    EXPECT_EQ(listed(u"名称"_s), u"新茶"_s) << "it can still be seen, and saved";
    database.run(u"DROP TRIGGER No"_s);
    GetParam().leave(grid);
    EXPECT_EQ(name(), u"新茶"_s);
}

TEST_P(Unsaved, ARefusedChangeGoesWhenTheUserDiscardsIt)
{
    ASSERT_TRUE(load());
    const QString before = name();
    write(u"名称"_s, u"新茶"_s, true);
    refuse();
    messages.answerNext(QMessageBox::Discard);
    GetParam().leave(grid);
    EXPECT_EQ(messages.shown().size(), 1u);
    EXPECT_EQ(name(), before);
    messages.clear();
    GetParam().leave(grid);
    EXPECT_TRUE(messages.texts().isEmpty()) << "nothing is left to be asked about";
}

TEST_P(Unsaved, ARefusedChangeIsTriedAsOftenAsTheUserWants)
{
    ASSERT_TRUE(load());
    write(u"名称"_s, u"新茶"_s, true);
    refuse();
    messages.answerNext(QMessageBox::Save);
    GetParam().leave(grid);
    EXPECT_EQ(messages.shown().size(), 2u) << "refused again, and asked again";
    database.run(u"DROP TRIGGER No"_s);
    GetParam().leave(grid);
    EXPECT_EQ(name(), u"新茶"_s);
}

TEST(UnsavedInADestroyedControl, IsSaved)
{
    TestDatabase database{u"CREATE TABLE T (ID INTEGER PRIMARY KEY, A TEXT); INSERT INTO T VALUES (1,'a')"_s};
    auto grid = std::make_unique<KOVAVSFDataGrid>();
    grid->PutConnectionString(database.connectionString());
    grid->PutSQLShow(u"select * from T"_s);
    ASSERT_TRUE(grid->IsLoadData());
    grid->show();
    grid->findChild<QAction *>(u"SingleRecord"_s)->trigger();
    auto *list = grid->findChild<QTableView *>(u"MSFlexGrid1"_s);
    list->setCurrentIndex(list->model()->index(1, 1));
    QTest::keyClick(list, Qt::Key_F2);
    auto *edit = grid->findChild<QLineEdit *>(u"txtEdit"_s);
    edit->setText(u"b"_s);
    grid.reset();
    EXPECT_EQ(database.ask(u"SELECT A FROM T"_s), u"b"_s);
}

TEST(UnsavedInADestroyedControl, IsReportedWhenItIsRefused)
{
    TestDatabase database{u"CREATE TABLE T (ID INTEGER PRIMARY KEY, A TEXT); INSERT INTO T VALUES (1,'a')"_s};
    auto grid = std::make_unique<KOVAVSFDataGrid>();
    grid->PutConnectionString(database.connectionString());
    grid->PutSQLShow(u"select * from T"_s);
    ASSERT_TRUE(grid->IsLoadData());
    grid->show();
    grid->findChild<QAction *>(u"SingleRecord"_s)->trigger();
    auto *list = grid->findChild<QTableView *>(u"MSFlexGrid1"_s);
    list->setCurrentIndex(list->model()->index(1, 1));
    QTest::keyClick(list, Qt::Key_F2);
    grid->findChild<QLineEdit *>(u"txtEdit"_s)->setText(u"b"_s);
    database.run(u"CREATE TRIGGER No BEFORE UPDATE ON T BEGIN SELECT RAISE(ABORT, 'never'); END"_s);
    MessageAnswers messages;
    grid.reset();
    QCoreApplication::processEvents();
    ASSERT_EQ(messages.texts().size(), 1);
    EXPECT_TRUE(messages.texts().front().startsWith(u"记录没有保存："_s));
    EXPECT_EQ(database.ask(u"SELECT A FROM T"_s), u"a"_s);
}

namespace {

class LongTexts : public Shop
{
};

class ReadOnlyGrid : public Shop
{
};

} // namespace

TEST_F(LongTexts, AreNotCutByAnEditThatChangesNothing)
{
    database.run(u"UPDATE 商品 SET 名称 = (WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n "
                 u"WHERE i < 40000) "
                 "SELECT group_concat('x','') FROM n) WHERE ID = 1"_s);
    ASSERT_TRUE(load());
    click(u"SingleRecord"_s);
    list->setCurrentIndex(list->model()->index(listedRow(u"名称"_s), 1));
    list->setFocus();
    QTest::keyClick(list, Qt::Key_F2);
    EXPECT_EQ(edit->text().size(), 40000);
    QTest::keyClick(edit, Qt::Key_Return);
    click(u"AllRecord"_s);
    EXPECT_EQ(database.ask(u"SELECT length(名称) FROM 商品 WHERE ID = 1"_s), u"40000"_s);
}

TEST_F(ReadOnlyGrid, OffersNeitherToAddNorToDeleteNorToChange)
{
    ASSERT_TRUE(load());
    EXPECT_FALSE(grid.property("ReadOnly").toBool());
    grid.setProperty("ReadOnly", true);
    const auto *menu = grid.findChild<QMenu *>(u"PopMnuData"_s);
    choose(5, 1); // which prepares the menu
    EXPECT_FALSE(menu->actions().at(7)->isEnabled());
    EXPECT_FALSE(menu->actions().at(8)->isEnabled());
    list->setCurrentIndex(list->model()->index(listedRow(u"名称"_s), 1));
    list->setFocus();
    QTest::keyClick(list, Qt::Key_F2);
    EXPECT_TRUE(edit->isReadOnly());
    QTest::keyClick(edit, Qt::Key_Escape);
    messages.answerNext(QMessageBox::Yes);
    menu->actions().at(8)->trigger();
    EXPECT_TRUE(messages.texts().isEmpty());
    EXPECT_EQ(database.ask(u"SELECT count(*) FROM 商品"_s), QString::number(records));
    grid.setProperty("ReadOnly", false);
    choose(6, 1);
    EXPECT_TRUE(menu->actions().at(7)->isEnabled());
}

// Earlier changes stay visible, and are saved to the database only when the host allows it.
TEST_P(Unsaved, AChangeIsKeptButNotSavedOnceTheHostWantsRecordsReadOnly)
{
    for (const bool isConfirmed : {true, false}) {
        SCOPED_TRACE(isConfirmed ? "confirmed" : "typed");
        ASSERT_TRUE(load());
        const QString before = name();
        write(u"名称"_s, u"新茶"_s, isConfirmed);
        grid.setProperty("ReadOnly", true);
        messages.answerNext(QMessageBox::Cancel);
        GetParam().leave(grid);
        EXPECT_EQ(messages.texts(),
                  QStringList(u"记录没有保存：记录已设为只读，不能再保存。修改的内容仍在，按 Esc 放弃。"_s));
        EXPECT_EQ(name(), before);
        ASSERT_TRUE(isSingleRecordShown());
        EXPECT_EQ(listed(u"名称"_s), u"新茶"_s);
        messages.clear();
        click(u"AllRecord"_s);
        EXPECT_EQ(messages.texts().size(), 1);
        EXPECT_TRUE(isSingleRecordShown());
        EXPECT_EQ(name(), before);
        if (isConfirmed) {
            QTest::keyClick(list, Qt::Key_Escape);
            EXPECT_EQ(listed(u"名称"_s), before) << "the user can give it up";
        }
        messages.clear();
        grid.setProperty("ReadOnly", false);
        GetParam().leave(grid);
        EXPECT_TRUE(messages.texts().isEmpty());
        EXPECT_EQ(name(), isConfirmed ? before : u"新茶"_s) << "or the host can let it be saved";
        grid.show();
    }
}

// A result that can't be written offers no change, and shows the reason.
TEST_F(ReadOnlyGrid, ResultsThatCannotBeWrittenOfferNoChangeBeforeAnybodyIsAsked)
{
    struct Refused
    {
        QString statement;
        QString why; // part of the tip
    };
    const Refused results[] = {{u"SELECT a.ID, b.名称 FROM 商品 a, 商品 b WHERE a.ID = b.ID"_s, u"连接"_s},
                               {u"SELECT 城市, count(*) AS N FROM 商品 GROUP BY 城市"_s, u"汇总"_s},
                               {u"SELECT DISTINCT 城市 FROM 商品"_s, u"DISTINCT"_s},
                               {u"SELECT ID FROM 商品 UNION SELECT 99"_s, u"合并"_s},
                               {u"SELECT ID, row_number() OVER (ORDER BY ID) AS N FROM 商品"_s, u"汇总"_s}};
    const auto *menu = grid.findChild<QMenu *>(u"PopMnuData"_s);
    EXPECT_TRUE(menu->toolTipsVisible());
    for (const Refused &result : results) {
        SCOPED_TRACE(qUtf8Printable(result.statement));
        ASSERT_TRUE(load(result.statement));
        const int shown = rows();
        for (const int item : {7, 8}) {
            EXPECT_FALSE(menu->actions().at(item)->isEnabled());
            EXPECT_TRUE(menu->actions().at(item)->toolTip().contains(result.why))
                << qUtf8Printable(menu->actions().at(item)->toolTip());
        }
        QTest::keyClick(table, Qt::Key_Minus, Qt::ControlModifier);
        menu->actions().at(8)->trigger();
        EXPECT_TRUE(messages.texts().isEmpty()) << qUtf8Printable(messages.texts().join(u'|'));
        EXPECT_EQ(rows(), shown);
    }
    ASSERT_TRUE(load());
    EXPECT_TRUE(menu->actions().at(8)->isEnabled());
    EXPECT_EQ(menu->actions().at(8)->toolTip(), u"删除记录(D)"_s) << "an action without a tip gives its name";
}
