// A user over statements of every kind, and over part statements that differ from them. After every step the
// grid is compared with a model that knows rows alone. KOVA_WALK_STEPS and KOVA_MONKEY_SEED choose how many
// and which.
#include "StatementWalker.h"

#include "query/support/SampleTables.h"
#include "support/TestDatabase.h"

#include <KOVAVSFDataGridLib/ado/Connection.h>
#include <KOVAVSFDataGridLib/ado/Error.h>
#include <KOVAVSFDataGridLib/ado/Recordset.h>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

constexpr int defaultWalkSteps = 10000;

struct WalkedDatabase
{
    TestDatabase database{QString::fromUtf8(sampleTables)};
};

class StatementWalk : public testing::Test, protected WalkedDatabase, protected Hands
{
protected:
    StatementWalk() : Hands(database.connectionString(), KOVAVSFDataGrid::dbAccess)
    {
        grid.resize(1400, 320); // painted after each of 10,000 steps
    }

    // False for a statement that only Access takes.
    bool begin(StatementWalker &walker, const Case &one) const
    {
        const QString statement = StatementWalker::loadedBy(one);
        QStringList names;
        std::optional<StatementWalker::Rows> rows;
        try {
            rows = read(statement, &names);
        } catch (const ADODB::Error &) {
            EXPECT_TRUE(statement.contains(u" top "_s)) << qUtf8Printable(statement);
            return false;
        }
        std::optional<StatementWalker::Rows> whole;
        if (one.Has(u"whole"_s))
            whole = read(one[u"whole"_s], nullptr);
        else if (!statement.contains(u"where", Qt::CaseInsensitive))
            whole = rows;
        walker.begin(one, names, *rows, whole);
        return true;
    }

    StatementWalker::Rows read(const QString &statement, QStringList *fields) const
    {
        auto connection = std::make_shared<ADODB::Connection>();
        connection->Open(database.connectionString());
        ADODB::Recordset records;
        records.Open(statement, connection);
        StatementWalker::Rows rows;
        for (int field = 0; fields && field < records.Fields().Count(); ++field)
            fields->append(records.Fields().Item(field).Name());
        for (qint64 record = 1; record <= records.RecordCount(); ++record) {
            QStringList row;
            for (int field = 0; field < records.Fields().Count(); ++field)
                row.append(records.CellText(record, field));
            rows.push_back(row);
        }
        return rows;
    }
};

int walkNumber(const char *variable, int otherwise)
{
    bool isNumber = false;
    const int number = qEnvironmentVariableIntValue(variable, &isNumber);
    return isNumber ? number : otherwise;
}

} // namespace

TEST_F(StatementWalk, ShowsTheRowsOfAModelAfterEveryStep)
{
    const int steps = walkNumber("KOVA_WALK_STEPS", defaultWalkSteps);
    const auto seed = static_cast<unsigned>(walkNumber("KOVA_MONKEY_SEED", 20240229));
    std::printf("walk: %d steps from seed %u\n", steps, seed);
    std::mt19937 random(seed);
    StatementWalker walker(*this, random);
    const std::vector<Case> cases = ReadCases({u"part_statements.cases"_s, u"statements.cases"_s});
    constexpr int stepsOnEach = 25; // conditions grow too long to be worth while
    for (int done = 0; done < steps; done += stepsOnEach) {
        const Case &one = cases.at(static_cast<std::size_t>(done / stepsOnEach) % cases.size());
        SCOPED_TRACE(one.place.toStdString());
        if (!begin(walker, one))
            continue;
        for (int i = 0; i < stepsOnEach && !HasFailure(); ++i)
            walker.takeAny();
        ASSERT_FALSE(HasFailure()) << "in the steps from " << done;
    }
}
