// What the commands leave for the dialogs of the process to find.
#include "Shop.h"

#include "control/parts/lines/StatementLine.h"
#include "query/SharedValues.h"

using namespace KovaTest;
using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

namespace {

class Remembered : public Shop
{
protected:
    // What was shown before `key` was pressed is remembered as such; or what was remembered before stays.
    void expectRemembered(const QString &key, bool isRemembered = true)
    {
        const QString marker = u"not touched"_s;
        values.previousShowStatement = marker;
        const QString before = statement();
        click(key);
        EXPECT_EQ(values.previousShowStatement.simplified(), isRemembered ? before : marker)
            << qUtf8Printable(key);
    }

    SharedValues &values = SharedValues::instance();
};

} // namespace

TEST_F(Remembered, TheStatementBeforeAReloadByTheCommandsThatStepBack)
{
    ASSERT_TRUE(load());
    WindowAnswers dialogs({[](QDialog &dialog) { find(dialog, u"茶"_s); },
                           [](QDialog &dialog) { filter(dialog, u"ID > 1"_s); },
                           [](QDialog &dialog) { sort(dialog, {u"ID"_s}, true); },
                           [](QDialog &dialog) { tick(dialog, {u"ID"_s}); }});
    click(u"FromResult"_s);
    expectRemembered(u"QuickFilter"_s);
    expectRemembered(u"Filter"_s);
    EXPECT_EQ(values.lastFilter.trimmed(), u"ID > 1"_s);
    expectRemembered(u"Sort"_s);
    expectRemembered(u"ToPreview"_s);
    expectRemembered(u"ToOrigin"_s);
    expectRemembered(u"SelField"_s, false);
    expectRemembered(u"ToFullTable"_s, false);
    expectRemembered(u"All"_s, false);
}

TEST_F(Remembered, TheCellFilterLeavesBothAlone)
{
    ASSERT_TRUE(load());
    values.previousShowStatement = u"not touched"_s;
    values.lastFilter = u"nor this"_s;
    choose(14, 1);
    EXPECT_EQ(rows(), 1);
    EXPECT_EQ(values.previousShowStatement, u"not touched"_s);
    EXPECT_EQ(values.lastFilter, u"nor this"_s);
}

TEST_F(Remembered, CountAndPositionAfterEveryClick)
{
    ASSERT_TRUE(load());
    clickCell(4, 1);
    values.recordCountSnapshot = -1;
    values.recordPosition = -1;
    click(u"First"_s); // which has nothing to do
    EXPECT_EQ(values.recordCountSnapshot, records);
    EXPECT_EQ(values.recordPosition, 4);
}

// A statement that does not fit into the line below the grid.
TEST(StatementLineText, IsCutWithAnEllipsisAndWholeInTheToolTip)
{
    StatementLine line(nullptr);
    const QString statement = u"SELECT * FROM 商品\nWHERE 名称 LIKE '%<b>%' ORDER BY ID"_s;
    line.show({u"第 3 条，共 12 条"_s}, statement);
    EXPECT_EQ(line.text(), u"第 3 条，共 12 条　SELECT * FROM 商品 WHERE 名称 LIKE '%<b>%' ORDER BY ID"_s);
    EXPECT_TRUE(line.toolTip().contains(u"商品\nWHERE"_s)) << "as it was written";
    EXPECT_TRUE(line.toolTip().contains(u"'%&lt;b&gt;%'"_s)) << "and not as a picture of it";

    const int whole = line.fontMetrics().horizontalAdvance(line.text());
    line.resize(whole + 20, line.fontMetrics().height());
    const QImage shownWhole = line.grab().toImage();
    line.resize(whole / 2, line.height());
    const QImage shownCut = line.grab().toImage();
    EXPECT_NE(shownCut, shownWhole.copy(shownCut.rect())) << "cut at the edge, in the middle of a letter";

    StatementLine short_(nullptr);
    short_.resize(line.size());
    short_.show({u"第 3 条，共 12 条"_s}, statement.left(3));
    EXPECT_EQ(short_.grab().toImage().copy(0, 0, 20, 10), shownCut.copy(0, 0, 20, 10)) << "it begins alike";

    line.show({u"第 0 条，共 0 条"_s}, {});
    EXPECT_EQ(line.text(), QString());
    EXPECT_EQ(line.toolTip(), QString());
}

TEST(StatementLineText, GivesWayToItsNeighboursDownToNothing)
{
    StatementLine line(nullptr);
    line.show({u"第 1 条，共 1 条"_s}, QString(500, u'x'));
    EXPECT_EQ(line.minimumSizeHint().width(), 0);
}
