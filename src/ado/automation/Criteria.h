#pragma once

#include "ado/automation/ValueOrder.h"
#include "ado/values/Instant.h"

#include <QtCore/QVariant>

#include <memory>
#include <optional>
#include <vector>

namespace ADODB {

class Recordset;

// A condition on records in the syntax of ADO's Filter and Find: `name LIKE 'L%' AND (age >= 18 OR age =
// NULL)`. The operators are = <> < <= > >= and LIKE; AND has precedence over OR. Names with characters other
// than letters and digits must be in brackets. A value is a number, a text in '…' with doubled quotes inside,
// a date or time in #…#, TRUE, FALSE or NULL. A date is written as year-month-day or as month/day/year, a
// time as hour:minute with seconds and AM or PM if need be; a time alone is for fields of times. In #…#, they
// can only be compared with a field of dates or times, and not by LIKE. Comparisons are case-insensitive. In
// a pattern, * and % match any text.
class Criteria
{
public:
    // Throws 3001 if `text` is not a condition on these fields, and 3265 for an unknown field.
    static Criteria parse(const QString &text, const Recordset &recordset);
    // The same for a single comparison, as Find accepts it.
    static Criteria parseComparison(const QString &text, const Recordset &recordset);

    // Whether a record (numbered from 1) meets the condition. Reads saved values.
    bool matches(const Recordset &recordset, qint64 record) const;

private:
    enum class Kind { And, Or, Equal, NotEqual, Less, LessOrEqual, Greater, GreaterOrEqual, Like };
    struct Node
    {
        Kind kind = Kind::Equal;
        std::vector<Node> parts; // of And and Or
        int column = 0;
        ComparedAs as = ComparedAs::Stored;
        QVariant value;                 // invalid: Null
        std::optional<Instant> instant; // the value of a field of dates or times
    };
    friend class CriteriaParser;
    static bool matches(const Node &node, const Recordset &recordset, qint64 record);
    static bool compares(const Node &node, const QVariant &cell);

    Node m_root;
};

} // namespace ADODB
