// Looking for a text in many cells.
#include "session/find/CellSearch.h"

#include "ado/Connection.h"
#include "ado/Recordset.h"

#include <algorithm>
#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

namespace {

using Case = TextMatcher::Case;
using Extent = TextMatcher::Extent;

struct Match
{
    const char *text;
    const char *sought;
    Case caseOf;
    Extent extent;
    bool matches;
};

struct CellSearchTest : testing::Test
{
    CellSearchTest()
    {
        auto connection = std::make_shared<ADODB::Connection>();
        connection->Open(u"Provider=SQLite;Data Source=:memory:"_s);
        recordset.Open(u"SELECT 1 AS N, 'one tea' AS T, 1.5 AS R, x'746561' AS B UNION ALL "
                       "SELECT 2, NULL, 12345.5, NULL UNION ALL SELECT 3, 'Tea and TEA', 3, NULL UNION ALL "
                       "SELECT 12, '12', 0.25, NULL"_s,
                       connection);
    }

    CellSearch search(const QString &text, Case caseOf = Case::Ignored, Extent extent = Extent::Part,
                      const QString &format = {})
    {
        std::vector<CellSearch::Column> columns;
        for (int i = 0; i < 3; ++i)
            columns.push_back({i + 1, i, recordset.Fields().Item(i).Type(), {}});
        columns[2].format = ADODB::DisplayFormat::fromText(format).value();
        return {recordset, {1, recordset.RecordCount()}, std::move(columns), {text, caseOf, extent}};
    }
    static std::vector<std::pair<int, int>> found(CellSearch search)
    {
        while (!search.isDone())
            search.addNextCells();
        std::vector<std::pair<int, int>> cells;
        for (auto cell = search.first(); cell; cell = search.next(*cell, false)) {
            cells.emplace_back(cell->record, cell->place);
            EXPECT_EQ(search.numberOf(*cell), std::ssize(cells));
        }
        EXPECT_EQ(std::ssize(cells), search.count());
        std::vector<std::pair<int, int>> backwards;
        for (auto cell = search.last(); cell; cell = search.previous(*cell, false))
            backwards.emplace_back(cell->record, cell->place);
        std::ranges::reverse(backwards);
        EXPECT_EQ(backwards, cells);
        return cells;
    }

    ADODB::Recordset recordset;
    using Cells = std::vector<std::pair<int, int>>;
};

} // namespace

TEST(TextMatcher, ComparesTextsAsTheUserAsks)
{
    for (const Match &match : {
             Match{"Green tea", "TEA", Case::Ignored, Extent::Part, true},
             Match{"Green tea", "TEA", Case::Exact, Extent::Part, false},
             Match{"Green tea", "tea", Case::Exact, Extent::Part, true},
             Match{"tea", "Tea", Case::Ignored, Extent::Whole, true},
             Match{"teas", "tea", Case::Ignored, Extent::Whole, false},
             Match{"aabaabaac", "aabaac", Case::Ignored, Extent::Part, true},
             Match{"aabaabaad", "aabaac", Case::Ignored, Extent::Part, false},
             Match{"龙井茶", "茶", Case::Ignored, Extent::Part, true},
             Match{"龙井茶", "茶", Case::Exact, Extent::Whole, false},
             Match{"ÄPFEL", "äpfel", Case::Ignored, Extent::Part, true},
             Match{"ÄPFEL", "äpfel", Case::Exact, Extent::Part, false},
             Match{"ÄPFEL", "äpfel", Case::Ignored, Extent::Whole, true},
             Match{"tea", "", Case::Ignored, Extent::Part, false},
             Match{"", "tea", Case::Ignored, Extent::Part, false},
             Match{"te", "tea", Case::Ignored, Extent::Part, false},
         }) {
        const TextMatcher matcher(QString::fromUtf8(match.sought), match.caseOf, match.extent);
        EXPECT_EQ(matcher.matches(match.text), match.matches) << match.text << " / " << match.sought;
        int places = 0;
        matcher.forEachMatch(QString::fromUtf8(match.text), [&](qsizetype, qsizetype) { ++places; });
        EXPECT_EQ(places > 0, match.matches) << match.text << " / " << match.sought;
    }
}

TEST(TextMatcher, FindsWhatIsLongerThanItsTable)
{
    const QString text = QString(700, u'a') + u'b' + QString(700, u'a');
    for (const QString &sought : {text, QString(700, u'a') + u'b', u'b' + QString(700, u'a')})
        EXPECT_TRUE(TextMatcher(sought, Case::Exact, Extent::Part).matches(text.toUtf8()));
    EXPECT_FALSE(TextMatcher(QString(701, u'a'), Case::Exact, Extent::Part).matches(text.toUtf8()));
}

TEST(TextMatcher, NamesEachPlaceOnce)
{
    std::vector<qsizetype> places;
    TextMatcher(u"aa"_s, Case::Ignored, Extent::Part)
        .forEachMatch(u"aaaAa b aa"_s, [&](qsizetype start, qsizetype) { places.push_back(start); });
    EXPECT_EQ(places, (std::vector<qsizetype>{0, 2, 8}));
}

TEST_F(CellSearchTest, FindsEachCellOnceInTheOrderOfTheColumns)
{
    EXPECT_EQ(found(search(u"tea"_s)), (Cells{{1, 1}, {3, 1}}));
    EXPECT_EQ(found(search(u"Tea"_s, Case::Exact)), (Cells{{3, 1}}));
    EXPECT_EQ(found(search(u"12"_s)), (Cells{{2, 2}, {4, 0}, {4, 1}}));
    EXPECT_EQ(found(search(u"12"_s, Case::Ignored, Extent::Whole)), (Cells{{4, 0}, {4, 1}}));
    EXPECT_EQ(found(search(u"0.25"_s)), (Cells{{4, 2}}));
    EXPECT_EQ(found(search(u"nothing"_s)), Cells());
}

TEST_F(CellSearchTest, FindsANumberAsItIsAndAsItIsShown)
{
    EXPECT_EQ(found(search(u"12,345"_s, Case::Ignored, Extent::Part, u"#,##0.00"_s)), (Cells{{2, 2}}));
    EXPECT_EQ(found(search(u"12345"_s, Case::Ignored, Extent::Part, u"#,##0.00"_s)), (Cells{{2, 2}}));
    EXPECT_EQ(found(search(u"12,345"_s)), Cells());
}

TEST_F(CellSearchTest, EndsWhenTheRecordsHaveGone)
{
    CellSearch begun = search(u"tea"_s);
    recordset.Close();
    begun.addNextCells();
    EXPECT_TRUE(begun.isDone());
    EXPECT_EQ(begun.count(), 0);
    EXPECT_FALSE(begun.first());
}
