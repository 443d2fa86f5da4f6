#include "ado/providers/access/functions/AccessAggregates.h"

#include "ado/providers/access/functions/AccessCall.h"

#include <cmath>

namespace ADODB::AccessAggregates {

namespace {

// Zero-filled memory from SQLite, or null if there is none. It lives while the group is computed.
template<typename State>
State *stateOf(sqlite3_context *context)
{
    return static_cast<State *>(sqlite3_aggregate_context(context, sizeof(State)));
}

struct Kept
{
    sqlite3_value *value;
};

void keepFirst(sqlite3_context *context, int, sqlite3_value **values)
{
    if (auto *kept = stateOf<Kept>(context); kept && !kept->value)
        kept->value = sqlite3_value_dup(values[0]);
}

void keepLast(sqlite3_context *context, int, sqlite3_value **values)
{
    if (auto *kept = stateOf<Kept>(context)) {
        sqlite3_value_free(kept->value);
        kept->value = sqlite3_value_dup(values[0]);
    }
}

void answerKept(sqlite3_context *context)
{
    const auto *kept = stateOf<Kept>(context);
    if (!kept || !kept->value)
        return;
    sqlite3_result_value(context, kept->value);
    sqlite3_value_free(kept->value);
}

// Welford's method, which stays accurate for a large mean.
struct Spread
{
    qint64 count;
    double mean;
    double squares;
};

void spread(sqlite3_context *context, int, sqlite3_value **values)
{
    auto *state = stateOf<Spread>(context);
    if (!state || sqlite3_value_type(values[0]) == SQLITE_NULL)
        return;
    const double value = sqlite3_value_double(values[0]);
    const double difference = value - state->mean;
    state->mean += difference / static_cast<double>(++state->count);
    state->squares += difference * (value - state->mean);
}

// For a sample, the divisor is the count minus one.
template<bool IsSample, bool IsRoot>
void answerSpread(sqlite3_context *context)
{
    const auto *state = stateOf<Spread>(context);
    const qint64 divisor = state ? state->count - (IsSample ? 1 : 0) : 0;
    if (divisor <= 0)
        return;
    const double variance = state->squares / static_cast<double>(divisor);
    sqlite3_result_double(context, IsRoot ? std::sqrt(variance) : variance);
}

using Step = void (*)(sqlite3_context *, int, sqlite3_value **);
using Final = void (*)(sqlite3_context *);

void offer(sqlite3 *db, const char *name, Step step, Final final)
{
    sqlite3_create_function_v2(db, name, 1, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, nullptr, step, final,
                               nullptr);
}

} // namespace

void install(sqlite3 *db)
{
    offer(db, "First", keepFirst, answerKept);
    offer(db, "Last", keepLast, answerKept);
    offer(db, "Var", spread, answerSpread<true, false>);
    offer(db, "VarP", spread, answerSpread<false, false>);
    offer(db, "StDev", spread, answerSpread<true, true>);
    offer(db, "StDevP", spread, answerSpread<false, true>);
}

} // namespace ADODB::AccessAggregates
