#include "sql/ShownNumbers.h"

#include "sql/Literals.h"

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

bool isWhole(const QString &number)
{
    return !number.contains(u'.') && !number.contains(u'e', Qt::CaseInsensitive);
}

// SQLite compares numbers as shown, and PostgreSQL's floats are cast.
NumberRange rangeShown(Engine engine, NumberKind kind, const QString &number, bool isComputed)
{
    const bool isDouble = kind == NumberKind::Double;
    if ((!isDouble && kind != NumberKind::Single) || engine == Engine::SQLite ||
        (engine == Engine::PostgreSQL && !isDouble) || (isWhole(number) && !isComputed))
        return {};
    return rangeShownAs(number, isDouble ? FloatSize::Double : FloatSize::Single, engine);
}

} // namespace

// If LIKE does not accept numbers, they are compared as numbers: as texts they may have more digits.
QString showsNumber(Engine engine, const QString &field, NumberKind kind, const QString &number,
                    bool isComputed)
{
    if (const NumberRange range = rangeShown(engine, kind, number, isComputed); !range.isEmpty())
        return u"%1 BETWEEN %2 AND %3"_s.arg(field, range.from, range.to);
    const QString like = field + " like "_L1;
    const QString equals = field + " = "_L1;
    const bool isFloating = kind == NumberKind::Single || kind == NumberKind::Double;
    switch (engine) {
    case Engine::PostgreSQL:
        if (kind == NumberKind::Currency)
            return u"%1 = %2"_s.arg(moneyOperand(engine, field), number);
        // It is the same number only if it is cast to the same precision.
        return equals + (kind == NumberKind::Single ? u"CAST(%1 AS REAL)"_s.arg(number) : number);
    case Engine::SQLite:
        if (kind == NumberKind::Currency)
            return equals + number;
        return like + number + (isFloating && isWhole(number) ? ".0"_L1 : ""_L1);
    default:
        return (kind == NumberKind::Exact ? like : equals) + number;
    }
}

// 9 and 9.0 look the same, and SQLite can compute either.
QString showsComputedNumber(Engine engine, const QString &field, const QString &number)
{
    return engine == Engine::SQLite ? u"(%1 = %2 OR %1 like '%2')"_s.arg(field, number) : QString();
}

} // namespace KOVAVSFDataGridLib
