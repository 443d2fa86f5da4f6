#include "ado/providers/access/functions/AccessNumberFunctions.h"

#include "ado/providers/access/functions/AccessCall.h"

#include <QtCore/QtNumeric>

#include <algorithm>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace ADODB::AccessNumberFunctions {

namespace {

constexpr qint64 yes = -1; // True in Access

// For a date, truncates the time.
template<double (*Whole)(double)>
void whole(AccessCall &call)
{
    if (call.isDate(0))
        call.answerDate(Whole(call.number(0)));
    else
        call.answer(Whole(call.real(0)));
}

double down(double value)
{
    return std::floor(value);
}

double towardsZero(double value)
{
    return std::trunc(value);
}

void sign(AccessCall &call)
{
    const double number = call.real(0);
    call.answer(qint64{number > 0} - qint64{number < 0});
}

void root(AccessCall &call)
{
    call.answer(std::sqrt(call.real(0)));
}

// Rounds half to even, as Access does.
void round(AccessCall &call)
{
    constexpr double mostDigits = 15;
    const double digits = call.count() > 1 ? std::clamp(call.real(1), 0.0, mostDigits) : 0;
    const double factor = std::pow(10, std::trunc(digits));
    const double scaled = call.real(0) * factor;
    call.answer(std::isfinite(scaled) ? std::nearbyint(scaled) / factor : call.real(0));
}

void logarithm(AccessCall &call)
{
    if (call.real(0) <= 0)
        return call.fail("Log");
    call.answer(std::log(call.real(0)));
}

void toInteger(AccessCall &call)
{
    call.answer(static_cast<qint64>(std::nearbyint(std::clamp(call.number(0), -0x1p62, 0x1p62))));
}

void toDouble(AccessCall &call)
{
    call.answer(call.number(0));
}

void value(AccessCall &call)
{
    call.answer(call.real(0));
}

void toCurrency(AccessCall &call)
{
    constexpr double units = 10'000;
    call.answer(std::nearbyint(call.real(0) * units) / units);
}

void toBoolean(AccessCall &call)
{
    call.answer(call.real(0) != 0 ? yes : qint64{0});
}

void nz(AccessCall &call)
{
    if (!call.isNull(0))
        call.answerArgument(0);
    else if (call.count() > 1)
        call.answerArgument(1);
    else
        call.answer(u""_s);
}

void isNull(AccessCall &call)
{
    call.answer(call.isNull(0) ? yes : qint64{0});
}

bool isNumber(const AccessCall &call, int index)
{
    bool isNumber = true;
    if (call.isText(index))
        static_cast<void>(call.text(index).toDouble(&isNumber));
    return isNumber;
}

void isNumeric(AccessCall &call)
{
    call.answer(!call.isNull(0) && isNumber(call, 0) ? yes : qint64{0});
}

void pick(AccessCall &call)
{
    for (int i = 0; i + 1 < call.count(); i += 2) {
        if (!call.isNull(i) && call.real(i) != 0)
            return call.answerArgument(i + 1);
    }
}

void choose(AccessCall &call)
{
    const qint64 index = call.count() > 0 ? call.integer(0) : 0;
    if (index > 0 && index < call.count())
        call.answerArgument(static_cast<int>(index));
}

// Returns Null if a text is not a number.
template<bool (*Compute)(qint64, qint64, qint64 *), double (*ComputeReal)(double, double)>
void computeNumbers(AccessCall &call)
{
    qint64 result = 0;
    if (call.isInteger(0) && call.isInteger(1) && !Compute(call.integer(0), call.integer(1), &result))
        call.answer(result);
    else if (isNumber(call, 0) && isNumber(call, 1))
        call.answer(ComputeReal(call.real(0), call.real(1)));
}

bool addIntegers(qint64 a, qint64 b, qint64 *result)
{
    return qAddOverflow(a, b, result);
}

bool subtractIntegers(qint64 a, qint64 b, qint64 *result)
{
    return qSubOverflow(a, b, result);
}

double addReals(double a, double b)
{
    return a + b;
}

double subtractReals(double a, double b)
{
    return a - b;
}

// A Currency or Decimal with more digits than a double can hold is a text here.
bool isLongNumber(const AccessCall &call, int index)
{
    constexpr qsizetype digitsOfDouble = 15;
    return call.text(index).size() > digitsOfDouble && isNumber(call, index);
}

void add(AccessCall &call)
{
    if (call.isDate(0) || call.isDate(1))
        call.answerDate(call.number(0) + call.number(1));
    else if (call.isText(0) && call.isText(1) && !(isLongNumber(call, 0) && isLongNumber(call, 1)))
        call.answer(call.text(0) + call.text(1));
    else
        computeNumbers<addIntegers, addReals>(call);
}

void subtract(AccessCall &call)
{
    if (call.isDate(0) && call.isDate(1))
        call.answer(call.number(0) - call.number(1));
    else if (call.isDate(0))
        call.answerDate(call.number(0) - call.number(1));
    else
        computeNumbers<subtractIntegers, subtractReals>(call);
}

} // namespace

void install(sqlite3 *db)
{
    AccessCall::offer<AccessCall::strict<add>>(db, "access_add", 2);
    AccessCall::offer<AccessCall::strict<subtract>>(db, "access_subtract", 2);
    AccessCall::offer<AccessCall::strict<whole<down>>>(db, "Int", 1);
    AccessCall::offer<AccessCall::strict<whole<towardsZero>>>(db, "Fix", 1);
    AccessCall::offer<AccessCall::strict<sign>>(db, "Sgn", 1);
    AccessCall::offer<AccessCall::strict<root>>(db, "Sqr", 1);
    AccessCall::offer<AccessCall::strict<logarithm>>(db, "Log", 1);
    AccessCall::offer<AccessCall::strict<round>>(db, "Round", 1);
    AccessCall::offer<AccessCall::strict<round>>(db, "Round", 2);
    AccessCall::offer<AccessCall::strict<toInteger>>(db, "CInt", 1);
    AccessCall::offer<AccessCall::strict<toInteger>>(db, "CLng", 1);
    AccessCall::offer<AccessCall::strict<toDouble>>(db, "CDbl", 1);
    AccessCall::offer<AccessCall::strict<toDouble>>(db, "CSng", 1);
    AccessCall::offer<AccessCall::strict<value>>(db, "Val", 1);
    AccessCall::offer<AccessCall::strict<toCurrency>>(db, "CCur", 1);
    AccessCall::offer<AccessCall::strict<toBoolean>>(db, "CBool", 1);
    AccessCall::offer<isNumeric>(db, "IsNumeric", 1);
    AccessCall::offer<nz>(db, "Nz", 1);
    AccessCall::offer<nz>(db, "Nz", 2);
    AccessCall::offer<isNull>(db, "IsNull", 1);
    AccessCall::offer<pick>(db, "Switch", -1);
    AccessCall::offer<choose>(db, "Choose", -1);
}

} // namespace ADODB::AccessNumberFunctions
