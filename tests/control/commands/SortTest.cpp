// The sort dialog's way from names to a statement and back, as each database quotes them.
#include "ColumnMenuFixture.h"
#include "Shop.h"

#include "support/Dialogs.h"

#include <QtWidgets/QComboBox>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

using Sort = Shop;

// Oracle doesn't support brackets. Its quoting is tested with a database that accepts it too.
class OracleSort : public Shop
{
protected:
    OracleSort()
    {
        grid.PutDBType(KOVAVSFDataGrid::dbOracle);
        EXPECT_TRUE(load(statementOfAll(), {}));
    }
    ~OracleSort() override { grid.PutDBType(KOVAVSFDataGrid::dbAccess); }
    static void sortByPrice(QDialog &dialog) { sort(dialog, {u"\"Unit Price\""_s}, true); }
};

} // namespace

TEST_F(Sort, SortOrdersAndKeepsTheCondition)
{
    ASSERT_TRUE(load());
    WindowAnswers dialogs({[](QDialog &dialog) { find(dialog, u"大连"_s); },
                           [](QDialog &dialog) { sort(dialog, {u"ID"_s}, true); },
                           [](QDialog &dialog) { cancel(dialog); }});
    click(u"QuickFilter"_s);
    click(u"Sort"_s);
    EXPECT_EQ(texts(u"ID"_s), QStringList({u"8"_s, u"5"_s}));
    EXPECT_TRUE(statement().endsWith(u"ORDER BY ID DESC"_s)) << qUtf8Printable(statement());
    const QString sorted = statement();
    click(u"Sort"_s); // cancelled
    EXPECT_EQ(statement(), sorted);
    EXPECT_EQ(texts(u"ID"_s), QStringList({u"8"_s, u"5"_s}));
}

TEST_F(Sort, AFieldNameWithABlankIsSortedByInBrackets)
{
    ASSERT_TRUE(load());
    WindowAnswers dialogs({[](QDialog &dialog) { sort(dialog, {u"[Unit Price]"_s}, true); },
                           [](QDialog &dialog) {
                               auto *rows = dialog.findChild<QAbstractItemView *>(u"lvSortFields"_s)->model();
                               EXPECT_EQ(rows->index(0, 0).data().toString(), u"[Unit Price]"_s);
                               cancel(dialog);
                           }});
    click(u"Sort"_s);
    EXPECT_EQ(texts(u"ID"_s).first(), u"2"_s);
    EXPECT_TRUE(statement().endsWith(u"ORDER BY [Unit Price] DESC"_s));
    click(u"Sort"_s);
}

TEST_F(OracleSort, AFieldNameWithABlankComesAndGoesInDoubleQuotes)
{
    WindowAnswers dialogs({sortByPrice, [](QDialog &dialog) {
                               auto *rows = dialog.findChild<QAbstractItemView *>(u"lvSortFields"_s)->model();
                               EXPECT_EQ(rows->index(0, 0).data().toString(), u"\"Unit Price\""_s);
                               EXPECT_EQ(rows->rowCount(), 1);
                               cancel(dialog);
                           }});
    click(u"Sort"_s);
    EXPECT_TRUE(statement().endsWith(u"ORDER BY \"Unit Price\" DESC"_s)) << qUtf8Printable(statement());
    EXPECT_EQ(texts(u"ID"_s).first(), u"2"_s);
    click(u"Sort"_s);
}

TEST_F(OracleSort, TheViewersDialogQuotesAlike)
{
    WindowAnswers dialogs({[](QDialog &viewer) {
                               auto *buttons = viewer.findChild<QToolBar *>(u"Toolbar1"_s);
                               QTest::mouseClick(
                                   buttons->widgetForAction(buttons->findChild<QAction *>(u"Sort"_s)),
                                   Qt::LeftButton);
                               viewer.reject();
                           },
                           sortByPrice});
    click(u"FullScreen"_s);
    EXPECT_TRUE(statement().endsWith(u"ORDER BY \"Unit Price\" DESC"_s)) << qUtf8Printable(statement());
    EXPECT_EQ(texts(u"ID"_s).first(), u"2"_s);
}

TEST_F(Sort, ComputedFieldsAreOfferedUnderTheirHeadings)
{
    ASSERT_TRUE(load(u"SELECT ID AS 编号, -ID AS 倒数, \"Unit Price\" FROM 商品"_s, {}));
    QStringList offered;
    WindowAnswers dialogs({[&](QDialog &dialog) {
                               const auto &fields = part<QComboBox>(dialog, "cmbFields");
                               for (int i = 0; i < fields.count(); ++i)
                                   offered.append(fields.itemText(i));
                               sort(dialog, {u"倒数"_s});
                           },
                           [](QDialog &dialog) { sort(dialog, {}); }});
    click(u"Sort"_s);
    EXPECT_EQ(offered, QStringList({u"编号"_s, u"倒数"_s, u"\"Unit Price\""_s}));
    EXPECT_EQ(texts(u"编号"_s).first(), u"12"_s) << qUtf8Printable(statement());
    click(u"Sort"_s);
    EXPECT_EQ(texts(u"编号"_s).first(), u"1"_s) << "an emptied list removes the sort";
    EXPECT_FALSE(statement().contains(u"ORDER BY"));
}

// Of two tables with equal names, a sort by the one is none by the other.
TEST_F(ColumnMenu, TellsASortByAnotherTablesColumnApart)
{
    const QString select = u"SELECT A.ID,A.名称 FROM 商品 A JOIN 商品 B ON B.ID=8-A.ID "_s;
    ASSERT_TRUE(load(select + u"ORDER BY B.ID DESC, A.名称"_s, {}));
    EXPECT_EQ(spoken(u"ID"_s), u"ID"_s);
    open(u"ID"_s);
    EXPECT_FALSE(entry(u"RemoveFromSort"_s)->isEnabled());
    menu()->close();
    choose(u"名称"_s, u"RemoveFromSort"_s);
    choose(u"ID"_s, u"AddToSort"_s);
    EXPECT_TRUE(statement().endsWith(u"ORDER BY B.ID DESC,A.ID"_s)) << qUtf8Printable(statement());
    for (const QString &tail :
         {u"GROUP BY A.ID,A.名称,B.ID ORDER BY B.ID DESC"_s, u"ORDER BY B.ID DESC LIMIT 4"_s}) {
        ASSERT_TRUE(load(select + tail, {}));
        EXPECT_EQ(spoken(u"ID"_s), u"ID"_s);
        const QStringList ids = texts(u"ID"_s);
        open(u"名称"_s);
        EXPECT_FALSE(entry(u"AddToSort"_s)->isEnabled());
        menu()->close();
        choose(u"名称"_s, u"HideColumn"_s);
        EXPECT_EQ(texts(u"ID"_s), ids);
    }
    ASSERT_TRUE(load(u"SELECT ID AS 编号,名称 AS ID FROM 商品 A ORDER BY A.ID DESC"_s, {}));
    EXPECT_EQ(spoken(u"ID"_s), u"ID"_s);
    EXPECT_EQ(spoken(u"编号"_s), u"编号，第 1 排序字段，降序"_s);
    EXPECT_TRUE(messages.shown().empty()) << qUtf8Printable(messages.texts().join(u'|'));
}

// SQLite would sort what is limited within before it takes the first ones, so a limit of all is around it.
TEST_F(ColumnMenu, KeepsASortThatIsBehindTheLimitOfAllRecords)
{
    ASSERT_TRUE(load(
        u"SELECT ID, 名称 FROM (SELECT * FROM 商品 LIMIT 9) AS A GROUP BY ID,名称 ORDER BY max(-A.ID)+0"_s,
        {}));
    const QStringList ids = texts(u"ID"_s);
    ASSERT_EQ(ids.first(), u"9"_s);
    choose(u"名称"_s, u"HideColumn"_s);
    EXPECT_TRUE(statement().contains(u"LIMIT -1"_s)) << qUtf8Printable(statement());
    EXPECT_EQ(texts(u"ID"_s), ids);
    open(u"ID"_s);
    EXPECT_FALSE(entry(u"AddToSort"_s)->isEnabled());
    EXPECT_FALSE(entry(u"AddToSort"_s)->toolTip().isEmpty());
    menu()->close();
    EXPECT_TRUE(messages.shown().empty()) << qUtf8Printable(messages.texts().join(u'|'));
}
