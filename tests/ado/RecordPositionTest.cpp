#include "Throwing.h"

#include "ado/rows/RecordPosition.h"

#include <limits>
#include <string_view>
#include <vector>

using namespace ADODB;

namespace {

// Each case is a set of `count` records, a walk through it, and where that ends. In the walk: f and l are
// first and last, n and p next and previous, > and < five records on or back, x removes the current record, +
// appends.
struct Walk
{
    qint64 count;
    const char *steps;
    qint64 absolute;
    bool bof;
    bool eof;
    bool fails = false; // the last step throws "no current record"
};

void take(RecordPosition &position, char step)
{
    switch (step) {
    case 'f':
        return position.move(0, adBookmarkFirst);
    case 'l':
        return position.move(0, adBookmarkLast);
    case 'n':
        return position.move(1, adBookmarkCurrent);
    case 'p':
        return position.move(-1, adBookmarkCurrent);
    case '>':
        return position.move(5, adBookmarkCurrent);
    case '<':
        return position.move(-5, adBookmarkCurrent);
    case '0':
        return position.move(0, adBookmarkCurrent);
    case 'x':
        return position.removeCurrent();
    default:
        return position.append();
    }
}

TEST(RecordPosition, WalksAsAdoDoes)
{
    const std::vector<Walk> walks{
        {3, "", 1, false, false},
        {3, "n", 2, false, false},
        {3, "nnn", adPosEOF, false, true},
        {3, "nnnn", adPosEOF, false, true, true},
        {3, "nnnp", 3, false, false},
        {3, "p", adPosBOF, true, false},
        {3, "pp", adPosBOF, true, false, true},
        {3, "pn", 1, false, false},
        {3, "p0", adPosBOF, true, false},
        {3, "l", 3, false, false},
        {3, "lf", 1, false, false},
        {3, ">", adPosEOF, false, true},
        {3, "><", adPosBOF, true, false},
        {9, "><", 1, false, false},
        {9, ">", 6, false, false},
        // an empty set
        {0, "", adPosUnknown, true, true},
        {0, "f", adPosUnknown, true, true, true},
        {0, "l", adPosUnknown, true, true, true},
        {0, "n", adPosUnknown, true, true, true},
        {0, "p", adPosUnknown, true, true, true},
        {0, "0", adPosUnknown, true, true, true},
        // a deleted record stays current until a move; its position is between its neighbours
        {3, "nx", adPosUnknown, false, false},
        {3, "nx0", adPosUnknown, false, false},
        {3, "nxn", 2, false, false},
        {3, "nxp", 1, false, false},
        {3, "xn", 1, false, false},
        {3, "xp", adPosBOF, true, false},
        {3, "lxn", adPosEOF, false, true},
        {3, "lxp", 2, false, false},
        {3, "xf", 1, false, false},
        // the only record deleted: no end is reported before the move, then there is nothing left
        {1, "x", adPosUnknown, false, false},
        {1, "xn", adPosUnknown, true, true},
        {1, "xp", adPosUnknown, true, true},
        {1, "xnn", adPosUnknown, true, true, true},
        // appending
        {0, "+", 1, false, false},
        {2, "+", 3, false, false},
        {1, "xn+", 1, false, false},
        {2, "+n", adPosEOF, false, true},
    };
    for (const Walk &walk : walks) {
        RecordPosition position;
        position.reset(walk.count);
        const std::string_view steps = walk.steps;
        for (std::size_t i = 0; i < steps.size(); ++i) {
            if (walk.fails && i + 1 == steps.size())
                EXPECT_ADO_ERROR(adErrNoCurrentRecord, take(position, steps[i]));
            else
                take(position, steps[i]);
        }
        EXPECT_EQ(position.absolute(), walk.absolute) << walk.count << ' ' << steps;
        EXPECT_EQ(position.isBOF(), walk.bof) << walk.count << ' ' << steps;
        EXPECT_EQ(position.isEOF(), walk.eof) << walk.count << ' ' << steps;
        EXPECT_EQ(position.record(), walk.absolute > 0 ? walk.absolute : 0) << walk.count << ' ' << steps;
    }
}

TEST(RecordPosition, SurvivesTheLargestSteps)
{
    RecordPosition position;
    position.reset(3);
    position.move(std::numeric_limits<qint64>::max(), adBookmarkLast);
    EXPECT_TRUE(position.isEOF());
    position.move(std::numeric_limits<qint64>::min(), adBookmarkCurrent);
    EXPECT_TRUE(position.isBOF());
}

TEST(RecordPosition, RefusesAnUnknownStart)
{
    RecordPosition position;
    position.reset(3);
    EXPECT_ADO_ERROR(adErrInvalidArgument, position.move(1, static_cast<BookmarkEnum>(9)));
    EXPECT_EQ(position.record(), 1);
}

} // namespace
