#pragma once

#include "filter/conditions/FieldClass.h"
#include "sql/Literals.h"

#include <QtCore/QDate>

#include <optional>

namespace KOVAVSFDataGridLib {

// A typed value in the form for a condition.
struct FilterValue
{
    QString literal = {};
    // Set if the text means a range: a month, or a day if timestamps are compared. The literal is then the
    // start of the range, and this is the day after its end.
    QString nextDay = {};
    NumberRange shownAlike = {}; // for floating point: the range of numbers that are shown like this one
    bool isTrue = false;         // for a Boolean
    // For comparing two values, if that is possible: the first and the last one that the text means.
    std::optional<double> rank = {};
    std::optional<double> lastRank = {};
};

// No value if the text is not a value of that class. Digits and signs
// may be full-width, as typed with Chinese input methods. Texts are used
// as typed, including spaces. Relative days are relative to `today`.
std::optional<FilterValue> readFilterValue(const Dialect &dialect, FieldClass fieldClass,
                                           const QString &typed, QDate today);

// The text in the form for a field: 12 for full-width digits, 2024-03-01 for 2024年3月1日. No value if it is
// not a value of that class, or means a range such as a month. Texts are used as typed.
std::optional<QString> plainValue(FieldClass fieldClass, const QString &typed, QDate today);

// A value as shown to users who choose it, in their language: yes or no for a Boolean. Any other text is
// unchanged.
QString valueInWords(FieldClass fieldClass, const QString &typed);

// A number of values, at least 1; no value if the text is not one.
std::optional<int> readFilterCount(const QString &typed);

// The date that a text is or begins with; invalid if there is none.
QDate dayOf(const QString &typed);

// Whether a text is a timestamp with a time other than 0:00.
bool hasTimeOfDay(const QString &typed);

// The message for a text that is not such a value.
QString whyNoFilterValue(FieldClass fieldClass, const QString &typed);

// The values of a list. They are separated by commas (ASCII or full-width), "、" or "；", or by tabs or line
// breaks as in cells copied from a spreadsheet. A value in double quotes may contain these itself. Empty
// values are skipped.
QStringList splitFilterList(const QString &typed);

// A value in the form for such a list.
QString filterListItem(const QString &value);

} // namespace KOVAVSFDataGridLib
