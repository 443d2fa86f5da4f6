// Long ways through the control, each step by clicks and keys, everything that can be seen checked after it.
#include "Shop.h"

#include "support/Dialogs.h"

#include <QtGui/QClipboard>
#include <QtWidgets/QPushButton>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

class Journey : public Shop
{
protected:
    // What a user sees after a step. Exactly one of "All" and "Part" is pressed, and the record under the
    // cursor is the one meant.
    void expectSeen(int rowCount, const QStringList &seenColumns, bool showsAll,
                    const QString &endOfStatement, bool isSingle = false)
    {
        EXPECT_EQ(rows(), rowCount);
        EXPECT_EQ(columns(), seenColumns);
        EXPECT_EQ(isPressed(u"All"_s), showsAll);
        EXPECT_EQ(isPressed(u"Part"_s), !showsAll);
        EXPECT_EQ(grid.ShowModel(), showsAll ? KOVAVSFDataGrid::ModelAll : KOVAVSFDataGrid::ModelPart);
        EXPECT_TRUE(statement().endsWith(endOfStatement)) << qUtf8Printable(statement());
        EXPECT_EQ(isSingleRecordShown(), isSingle);
        EXPECT_EQ(table->isVisible(), !isSingle);
        EXPECT_EQ(grid.GetGridRowL(), rowCount == 0 ? 0 : 1);
        EXPECT_EQ(grid.CurrPosition(), rowCount == 0 ? -1 : 1);
        EXPECT_TRUE(messages.shown().empty()) << qUtf8Printable(messages.texts().join(u'|'));
    }

    const QStringList allFields{u"ID"_s,   u"名称"_s, u"Unit Price"_s, u"城市"_s,
                                u"日期"_s, u"停用"_s, u"图片"_s};
    const QStringList partFields{u"ID"_s, u"名称"_s};
    const QStringList chosen{u"ID"_s, u"城市"_s};
    QSignalSpy fieldChanges{&grid, &KOVAVSFDataGrid::ShowFieldsChange};
    QSignalSpy replacements{&grid, &KOVAVSFDataGrid::RecordsetChanged};
};

} // namespace

TEST_F(Journey, ThroughEveryCommandAndBackToTheStart)
{
    WindowAnswers dialogs({[](QDialog &dialog) {
                               tick(dialog, {u"ID"_s, u"城市"_s});
                           },
                           [](QDialog &dialog) { filter(dialog, u"ID > 2"_s); },
                           [](QDialog &dialog) { sort(dialog, {u"ID"_s}, true); },
                           [](QDialog &dialog) { find(dialog, u"大连"_s); },
                           [](QDialog &viewer) {
                               EXPECT_EQ(viewer.objectName(), u"frm_FullScreen"_s);
                               QTest::keyClick(&viewer, Qt::Key_Escape);
                           }});
    ASSERT_TRUE(load());
    expectSeen(12, allFields, true, u"FROM 商品"_s);
    click(u"Part"_s);
    expectSeen(12, partFields, false, u"SELECT ID,名称 FROM 商品"_s);
    click(u"SelField"_s);
    expectSeen(12, chosen, false, u"SELECT ID,城市 FROM 商品"_s);
    EXPECT_EQ(fieldChanges.count(), 1);
    EXPECT_EQ(replacements.count(), 1) << "the load alone";
    click(u"Filter"_s); // from the origin: all fields are there again, the chosen ones are shown
    EXPECT_EQ(replacements.count(), 3) << "the old one closed, the new one opened";
    EXPECT_EQ(rows(), 10);
    EXPECT_TRUE(statement().endsWith(u"WHERE ID > 2"_s));
    click(u"All"_s);
    expectSeen(10, allFields, true, u"WHERE ID > 2"_s);
    click(u"Sort"_s);
    expectSeen(10, allFields, true, u"WHERE ID > 2 ORDER BY ID DESC"_s);
    click(u"QuickFilter"_s);
    expectSeen(2, allFields, true, u"ORDER BY ID DESC"_s);
    EXPECT_EQ(texts(u"ID"_s), QStringList({u"8"_s, u"5"_s}));
    for (int step = 0; step < 8; ++step)
        click(u"ToPreview"_s);
    expectSeen(12, allFields, true, u"FROM 商品"_s);
    click(u"ToOrigin"_s);
    expectSeen(12, allFields, true, u"FROM 商品"_s);
    click(u"ToFullTable"_s);
    expectSeen(12, allFields, true, u"FROM 商品"_s);
    click(u"FullScreen"_s);
    expectSeen(12, allFields, true, u"FROM 商品"_s);
}

TEST_F(Journey, RefiningTheResult)
{
    WindowAnswers dialogs({[](QDialog &dialog) { filter(dialog, u"ID > 2"_s); },
                           [](QDialog &dialog) { filter(dialog, u"ID < 9"_s); },
                           [](QDialog &dialog) { find(dialog, u"大连"_s); },
                           [](QDialog &dialog) { sort(dialog, {u"ID"_s}, true); }});
    ASSERT_TRUE(load());
    click(u"FromResult"_s);
    click(u"Filter"_s);
    expectSeen(10, allFields, true, u"WHERE ID > 2"_s);
    click(u"Filter"_s);
    expectSeen(6, allFields, true, u"WHERE ID > 2 AND ID < 9"_s);
    click(u"QuickFilter"_s);
    EXPECT_EQ(texts(u"ID"_s), QStringList({u"5"_s, u"8"_s}));
    click(u"Sort"_s);
    EXPECT_EQ(texts(u"ID"_s), QStringList({u"8"_s, u"5"_s}));
    click(u"ToFullTable"_s);
    expectSeen(12, allFields, true, u"ORDER BY ID DESC"_s);
    click(u"ToPreview"_s);
    click(u"ToPreview"_s);
    EXPECT_EQ(texts(u"ID"_s), QStringList({u"5"_s, u"8"_s}));
    click(u"ToPreview"_s);
    expectSeen(6, allFields, true, u"WHERE ID > 2 AND ID < 9"_s);
    click(u"ToPreview"_s);
    expectSeen(10, allFields, true, u"WHERE ID > 2"_s);
    EXPECT_TRUE(isPressed(u"FromResult"_s));
    click(u"ToOrigin"_s);
    expectSeen(12, allFields, true, u"FROM 商品"_s);
}

TEST_F(Journey, IntoAnEmptyResultAndOut)
{
    WindowAnswers dialogs({[](QDialog &dialog) { filter(dialog, u"ID > 99"_s); },
                           [](QDialog &dialog) { sort(dialog, {u"ID"_s}, true); }});
    ASSERT_TRUE(load());
    click(u"FromResult"_s);
    click(u"Filter"_s);
    expectSeen(0, allFields, true, u"WHERE ID > 99"_s);
    click(u"Sort"_s);
    expectSeen(0, allFields, true, u"ORDER BY ID DESC"_s);
    click(u"Filter"_s); // nothing to filter
    click(u"ToFullTable"_s);
    expectSeen(12, allFields, true, u"ORDER BY ID DESC"_s);
    EXPECT_EQ(texts(u"ID"_s).first(), u"12"_s);
}

TEST_F(Journey, OneRecordThroughEveryCommand)
{
    WindowAnswers dialogs({[](QDialog &dialog) { filter(dialog, u"ID > 2"_s); },
                           [](QDialog &dialog) { sort(dialog, {u"ID"_s}, true); },
                           [](QDialog &dialog) { find(dialog, u"大连"_s); },
                           [](QDialog &dialog) {
                               tick(dialog, {u"ID"_s, u"城市"_s});
                           }});
    ASSERT_TRUE(load());
    click(u"SingleRecord"_s);
    expectSeen(12, allFields, true, u"FROM 商品"_s, true);
    click(u"Part"_s);
    expectSeen(12, partFields, false, u"FROM 商品"_s, true);
    click(u"All"_s);
    expectSeen(12, allFields, true, u"FROM 商品"_s, true);
    click(u"Filter"_s);
    expectSeen(10, allFields, true, u"WHERE ID > 2"_s, true);
    EXPECT_EQ(listed(u"ID"_s), u"3"_s);
    click(u"Sort"_s);
    EXPECT_EQ(listed(u"ID"_s), u"12"_s);
    click(u"QuickFilter"_s);
    EXPECT_EQ(listed(u"ID"_s), u"8"_s);
    click(u"FromResult"_s);
    click(u"CompressView"_s);
    for (const QString &key : {u"First"_s, u"Previous"_s, u"Next"_s, u"Last"_s})
        click(key);
    expectSeen(2, allFields, true, u"ORDER BY ID DESC"_s, true);
    click(u"ToFullTable"_s);
    EXPECT_EQ(listed(u"ID"_s), u"12"_s);
    click(u"ToPreview"_s);
    expectSeen(2, allFields, true, u"ORDER BY ID DESC"_s);
    click(u"SingleRecord"_s);
    click(u"SelField"_s);
    expectSeen(2, chosen, false, u"ORDER BY ID DESC"_s);
    click(u"SingleRecord"_s);
    click(u"ToOrigin"_s);
    expectSeen(12, allFields, true, u"FROM 商品"_s);
}

TEST_F(Journey, AHostThatCancelsAndReplacesTheFilter)
{
    ASSERT_TRUE(load());
    QStringList conditions{u"城市 = '大连'"_s, u""_s, u"ID = 8"_s};
    QStringList bases;
    QObject::connect(&grid, &KOVAVSFDataGrid::QurryFilter, &grid, [&](qint32 &cancel, const QString &base) {
        bases.append(base.simplified());
        grid.PutPassQurryFilter(conditions.takeFirst());
        cancel = 0;
    });
    click(u"FromResult"_s);
    click(u"Filter"_s);
    expectSeen(2, allFields, true, u"WHERE 城市 = '大连'"_s);
    click(u"Filter"_s);
    EXPECT_EQ(grid.SQLFilter(), QString());
    EXPECT_EQ(rows(), 2);
    click(u"Filter"_s);
    expectSeen(1, allFields, true, u"WHERE 城市 = '大连' AND ID = 8"_s);
    EXPECT_EQ(bases, QStringList({statementOfAll(), u"SELECT * FROM 商品 WHERE 城市 = '大连'"_s,
                                  u"SELECT * FROM 商品 WHERE 城市 = '大连'"_s}));
}

TEST_F(Journey, TwoControlsInterleaved)
{
    TestDatabase otherDatabase(u"CREATE TABLE U (X INTEGER, Y TEXT);"
                               "INSERT INTO U VALUES (1,'a'),(2,'b'),(3,NULL)"_s);
    KOVAVSFDataGrid other;
    other.resize(1400, 400);
    other.show();
    other.PutConnectionString(otherDatabase.connectionString());
    other.PutDBType(KOVAVSFDataGrid::dbSQLServer);
    other.PutSQLShow(u"SELECT X,Y FROM U"_s);
    ASSERT_TRUE(other.IsLoadData());
    grid.PutDBType(KOVAVSFDataGrid::dbAccess);
    ASSERT_TRUE(load());
    other.PutDBType(KOVAVSFDataGrid::dbSQLServer); // the type is everybody's; what was loaded stays right
    const auto pressOther = [&](const QString &key) {
        auto *toolBar = other.findChild<QToolBar *>(u"Toolbar1"_s);
        QTest::mouseClick(toolBar->widgetForAction(toolBar->findChild<QAction *>(key)), Qt::LeftButton);
    };
    auto *otherTable = other.findChild<QTableView *>(u"vsfgDataGrid"_s);
    WindowAnswers dialogs({[](QDialog &dialog) { find(dialog, u"茶"_s); },
                           [](QDialog &dialog) { find(dialog, u"b"_s); },
                           [](QDialog &dialog) { find(dialog, u"杭州"_s); }});
    click(u"QuickFilter"_s);
    EXPECT_EQ(rows(), 6);
    EXPECT_TRUE(grid.SQLFilter().contains(u"商品.[ID] LIKE"_s));
    pressOther(u"QuickFilter"_s);
    EXPECT_EQ(otherTable->model()->rowCount(), 1);
    EXPECT_EQ(rows(), 6);
    click(u"QuickFilter"_s);
    EXPECT_EQ(rows(), 2);
    pressOther(u"ToPreview"_s);
    EXPECT_EQ(otherTable->model()->rowCount(), 3);
    click(u"ToOrigin"_s);
    EXPECT_EQ(rows(), records);
    EXPECT_EQ(other.CurrPosition(), 1);
    grid.PutDBType(KOVAVSFDataGrid::dbAccess);
}

TEST_F(Journey, TurningPages)
{
    grid.PutSQLPartDisplay({});
    grid.PutSQLShow(u"WITH RECURSIVE N(n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM N WHERE n < 1500000)"
                    " SELECT n AS 编号, n % 7 AS 余数 FROM N"_s);
    ASSERT_TRUE(grid.IsLoadData());
    table->setColumnWidth(0, 222);
    QSignalSpy moves(&grid, &KOVAVSFDataGrid::RecordChanged);
    click(u"Previous"_s);
    click(u"First"_s);
    EXPECT_EQ(rows(), 999999);
    click(u"Next"_s);
    EXPECT_EQ(rows(), 500001);
    EXPECT_EQ(grid.CurrPosition(), 1000000);
    EXPECT_EQ(pageLabel->text(), u"第2页共2页  只显示999999条以内的记录"_s);
    EXPECT_EQ(table->columnWidth(0), 222);
    click(u"Next"_s);
    click(u"Last"_s);
    EXPECT_EQ(grid.CurrPosition(), 1000000) << "nothing behind the last page";
    EXPECT_EQ(moves.count(), 0) << "filling a page is no move";
    clickCell(5, 1);
    EXPECT_EQ(grid.CurrPosition(), 1000004);
    click(u"SingleRecord"_s);
    EXPECT_EQ(listed(u"编号"_s), u"1000004"_s);
    click(u"First"_s);
    EXPECT_EQ(listed(u"编号"_s), u"1"_s);
    click(u"Last"_s);
    EXPECT_EQ(listed(u"编号"_s), u"1000000"_s);
    click(u"AllRecord"_s);
    click(u"Previous"_s);
    EXPECT_EQ(rows(), 999999);
}

TEST_F(Journey, TheStatementCanBeCopied)
{
    ASSERT_TRUE(load());
    auto *line = grid.findChild<QLabel *>(u"lblStatement"_s);
    line->setFocus();
    QTest::keyClick(line, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), statementOfAll());
}

TEST_F(Journey, OnlyAnAcceptedConnectionIsTaken)
{
    ASSERT_TRUE(load());
    const QString before = grid.ConnectionString();
    WindowAnswers dialogs({[](QDialog &dialog) {
                               part<QLineEdit>(dialog, "TextCS").setText(u"Data Source=x.db"_s);
                               dialog.reject();
                           },
                           [&](QDialog &dialog) {
                               EXPECT_EQ(part<QLineEdit>(dialog, "TextCS").text(), before);
                               part<QLineEdit>(dialog, "TextCS").setText(u"Data Source=y.db"_s);
                               press(dialog, "OKButton");
                           }});
    grid.GetConnection();
    EXPECT_EQ(grid.ConnectionString(), before);
    EXPECT_EQ(grid.SQLShow(), statementOfAll());
    grid.GetConnection();
    EXPECT_EQ(grid.ConnectionString(), u"Data Source=y.db"_s);
    EXPECT_EQ(grid.SQLShow(), QString()) << "another connection needs another statement";
    click(u"Part"_s); // what is still shown belongs to no history any more
    EXPECT_EQ(rows(), records);
}

TEST_F(Journey, AConnectionCanBringItsStatement)
{
    WindowAnswers dialogs({[&](QDialog &dialog) {
        part<QLineEdit>(dialog, "TextCS").setText(database.connectionString());
        part<QAbstractButton>(dialog, "Check_con").setChecked(true);
        press(dialog, "OKButton");
        part<QLineEdit>(dialog, "TextCS").setText(statementOfAll());
        press(dialog, "OKButton");
    }});
    grid.GetConnection();
    EXPECT_EQ(grid.SQLShow(), statementOfAll());
    EXPECT_TRUE(grid.IsLoadData());
}
