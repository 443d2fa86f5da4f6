// A host's statement in several lines: it stays as it is written, and what is derived from it finds its
// keywords.
#include "Shop.h"

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

class WrittenStatement : public Shop
{
protected:
    static QString written()
    {
        return u"-- what there is\r\nSELECT\tID,  -- the number\n\t名称,\n\t城市\nFROM\t商品\n"
               "WHERE\tID > 2\t/* not\nthe first */;\n"_s;
    }
    static QString part() { return u"SELECT\n\tID,\n\t城市\nFROM 商品;"_s; }
};

} // namespace

TEST_F(WrittenStatement, StaysAsItIsInRecordSourceAndInTheHistory)
{
    ASSERT_TRUE(load(written(), part())) << qUtf8Printable(messages.texts().join(u'|'));
    EXPECT_EQ(grid.RecordSource(), written());
    EXPECT_EQ(rows(), records - 2);
    WindowAnswers dialogs({[](QDialog &dialog) { find(dialog, u"杭州"_s); }});
    click(u"QuickFilter"_s);
    const int found = rows();
    EXPECT_LT(found, records - 2);
    EXPECT_GT(found, 0);
    EXPECT_EQ(grid.RecordSource(), written()) << "what the load opened";
    EXPECT_FALSE(grid.SQLFilter().contains(u'\n'));
    click(u"ToOrigin"_s);
    EXPECT_EQ(grid.SQLFilter(), written());
    EXPECT_TRUE(grid.findChild<QLabel *>(u"lblStatement"_s)->toolTip().contains(u"-- the number"_s));
    EXPECT_EQ(rows(), records - 2);
    EXPECT_TRUE(messages.shown().empty()) << qUtf8Printable(messages.texts().join(u'|'));
}

TEST_F(WrittenStatement, IsWhatTheHostIsAskedToFilter)
{
    ASSERT_TRUE(load(written(), part()));
    QString asked;
    QObject::connect(&grid, &KOVAVSFDataGrid::QurryFilter, &grid, [&](qint32 &cancel, const QString &base) {
        asked = base;
        grid.PutPassQurryFilter(u"ID < 5 OR ID = 9"_s);
        cancel = 0;
    });
    click(u"Filter"_s);
    EXPECT_EQ(asked, written());
    EXPECT_EQ(texts(u"ID"_s), QStringList({u"3"_s, u"4"_s, u"9"_s}));
}

TEST_F(WrittenStatement, AllowsEveryCommandToDeriveFromIt)
{
    ASSERT_TRUE(load(written(), part()));
    const QStringList all{u"ID"_s, u"名称"_s, u"城市"_s};
    EXPECT_EQ(columns(), all);
    click(u"Part"_s);
    EXPECT_EQ(columns(), QStringList({u"ID"_s, u"城市"_s}));
    click(u"All"_s);
    EXPECT_EQ(columns(), all);
    choose(14, 1, 1); // the cell filter
    EXPECT_EQ(texts(u"ID"_s), QStringList({u"3"_s}));
    click(u"ToFullTable"_s);
    EXPECT_EQ(rows(), records);
    click(u"ToOrigin"_s);
    EXPECT_EQ(rows(), records - 2);
    WindowAnswers dialogs({[](QDialog &dialog) { sort(dialog, {u"ID"_s}, true); },
                           [](QDialog &dialog) { tick(dialog, {u"名称"_s}); },
                           [](QDialog &dialog) { filter(dialog, u"ID = 5"_s); }});
    click(u"Sort"_s);
    EXPECT_EQ(texts(u"ID"_s).first(), u"12"_s);
    click(u"ToOrigin"_s);
    click(u"SelField"_s);
    EXPECT_EQ(columns(), QStringList({u"名称"_s}));
    click(u"ToOrigin"_s);
    EXPECT_EQ(columns(), all);
    click(u"Filter"_s);
    EXPECT_EQ(texts(u"ID"_s), QStringList({u"5"_s}));
    EXPECT_TRUE(messages.shown().empty()) << qUtf8Printable(messages.texts().join(u'|'));
}

TEST_F(WrittenStatement, IsSortedInOneLineWhereTheHostWantsItSorted)
{
    grid.PutSQLShow(u"SELECT *\nFROM 商品;"_s);
    grid.PutSQLPartDisplay({});
    grid.PutSQLSort(u"ID\nDESC"_s);
    ASSERT_TRUE(grid.IsLoadData());
    EXPECT_EQ(grid.RecordSource(), u"SELECT * FROM 商品 ORDER BY ID DESC"_s);
    EXPECT_EQ(texts(u"ID"_s).first(), u"12"_s);
}

TEST_F(WrittenStatement, CanBeLoadedAgainAndGivesWayToAnother)
{
    ASSERT_TRUE(load(written(), part()));
    ASSERT_TRUE(grid.IsLoadData());
    EXPECT_EQ(grid.RecordSource(), written());
    ASSERT_TRUE(load());
    EXPECT_EQ(grid.RecordSource(), statementOfAll());
    click(u"ToOrigin"_s);
    EXPECT_EQ(rows(), records);
}
