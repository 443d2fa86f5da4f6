// Part statements of hosts that differ from the statement, on every engine: after each command the rows must
// be those of a model, and the part fields the same ones, whatever was done before.
#include "EngineStatements.h"

#include "../control/commands/StatementWalker.h"

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

class PartStatementsOnEngines : public EngineStatements
{
protected:
    // Calls `walk` for the cases that the engine accepts, after their load.
    int forEachPart(const std::function<void(StatementWalker &)> &walk)
    {
        int taken = 0;
        std::mt19937 random(20240301);
        StatementWalker walker(*hands, random, letters());
        for (const Case &one : ReadCases(u"part_statements.cases"_s)) {
            SCOPED_TRACE(one.place.toStdString());
            const auto answer = read(StatementWalker::loadedBy(one));
            if (!answer || HasFailure()) // syntax of another engine
                continue;
            ++taken;
            walker.begin(one, answer->names, answer->rows, std::nullopt);
            walk(walker);
        }
        return taken;
    }
};

TEST_P(PartStatementsOnEngines, MeanTheSameFieldsInEveryOrderOfCommands)
{
    using Step = StatementWalker::Step;
    const int taken = forEachPart([](StatementWalker &walker) {
        for (const Step step : {Step::Part, Step::CellFilter, Step::Part, Step::All, Step::Back, Step::Sort,
                                Step::Part, Step::Origin, Step::Sort, Step::WordFilter, Step::Part,
                                Step::Fields, Step::All, Step::Part, Step::Back, Step::Back, Step::Back}) {
            if (HasFailure())
                return;
            walker.take(step);
        }
    });
    std::printf("%s takes %d statements\n", engine.name, taken);
    EXPECT_GE(taken, 30);
}

TEST_P(PartStatementsOnEngines, MeanTheSameFieldsInAnyOrderOfCommands)
{
    forEachPart([](StatementWalker &walker) {
        for (int i = 0; i < 12 && !HasFailure(); ++i)
            walker.takeAny();
    });
}

} // namespace

KOVA_ON_ENGINES_OF_STATEMENTS(PartStatementsOnEngines);
