// A second load of a statement whose part fields are shown.
#include "Shop.h"

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

class LoadAgain : public Shop
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(load());
        WindowAnswers dialogs({[](QDialog &dialog) { tick(dialog, chosen()); }});
        click(u"SelField"_s);
        ASSERT_EQ(columns(), chosen());
        ASSERT_TRUE(isPressed(u"Part"_s));
    }

    static QStringList chosen() { return {u"ID"_s, u"城市"_s}; }

    void expectView(bool isPart, const QStringList &shown, const char *after)
    {
        EXPECT_EQ(isPressed(u"Part"_s), isPart) << after;
        EXPECT_EQ(isPressed(u"All"_s), !isPart) << after;
        EXPECT_EQ(grid.ShowModel(), isPart ? KOVAVSFDataGrid::ModelPart : KOVAVSFDataGrid::ModelAll) << after;
        EXPECT_EQ(columns(), shown) << after;
    }

    // Leads away from the first statement, with all columns shown, and back by each of the two ways.
    void expectOriginShows(bool isPart, const QStringList &shown)
    {
        for (const QString &back : {u"ToPreview"_s, u"ToOrigin"_s}) {
            click(u"All"_s);
            expectView(false, AllColumns, "All");
            click(back);
            expectView(isPart, shown, qUtf8Printable(back));
        }
    }
};

} // namespace

TEST_F(LoadAgain, WithoutPartFieldsShowsAllOfThem)
{
    ASSERT_TRUE(load(statementOfAll(), {}));
    expectView(false, AllColumns, "the load");
    expectOriginShows(false, AllColumns);
    click(u"Part"_s);
    expectView(false, AllColumns, "Part without part fields");
    click(u"ToOrigin"_s);
    expectView(false, AllColumns, "ToOrigin");
}

// What a host sets once stays set.
TEST_F(LoadAgain, WithPartFieldsAfterALoadWithoutAnyShowsThese)
{
    ASSERT_TRUE(load(statementOfAll(), {}));
    ASSERT_TRUE(load(statementOfAll(), {}));
    ASSERT_TRUE(load());
    expectView(true, PartColumns, "the load");
    ASSERT_TRUE(load(statementOfAll(), {}));
    click(u"All"_s);
    ASSERT_TRUE(load());
    expectView(false, AllColumns, "a load after All");
}

TEST_F(LoadAgain, WithPartFieldsShowsThese)
{
    ASSERT_TRUE(load());
    expectView(true, PartColumns, "the load");
    expectOriginShows(true, PartColumns);
}

TEST_F(LoadAgain, WithAllFieldsAsPartFieldsShowsAllOfThem)
{
    grid.PutSQLShow(statementOfAll()); // which makes it SQLPartDisplay as well
    ASSERT_TRUE(grid.IsLoadData());
    expectView(true, AllColumns, "the load");
    expectOriginShows(true, AllColumns);
}

TEST_F(LoadAgain, WithPartFieldsOfAnotherTableHidesNothing)
{
    ASSERT_TRUE(load(statementOfAll(), u"SELECT 商品 FROM 订单"_s));
    EXPECT_EQ(columns(), AllColumns);
    click(u"All"_s);
    click(u"ToOrigin"_s);
    EXPECT_EQ(columns(), AllColumns);
}
