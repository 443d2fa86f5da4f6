#pragma once

#include "filter/conditions/FieldClass.h"
#include "sql/Literals.h"

#include <QtCore/QDate>

#include <optional>

namespace KOVAVSFDataGridLib {

// A typed value as it stands in a condition.
struct FilterValue
{
    QString literal = {};
    // Only where the text means more than one value, as a month does, or a day where moments are compared:
    // the literal is then the first of them, and this is the day that follows the last of them.
    QString nextDay = {};
    NumberRange shownAlike = {}; // of a float: what is shown like the number
    bool isTrue = false;         // of a Boolean
    // For finding which of two values is larger, where that is known: the first and the last one meant.
    std::optional<double> rank = {};
    std::optional<double> lastRank = {};
};

// Nothing when the text is no value of that class. Digits and signs may be full-width, as Chinese input
// methods give them. Text is taken as it was typed, with its blanks. Relative days are those seen from
// `today`.
std::optional<FilterValue> readFilterValue(const Dialect &dialect, FieldClass fieldClass,
                                           const QString &typed, QDate today);

// The same text as a field takes it: 12 for full-width digits, 2024-03-01 for 2024年3月1日. Nothing when the
// text is no value of that class, or means more than one, as a month does. Text is taken as it was typed.
std::optional<QString> plainValue(FieldClass fieldClass, const QString &typed, QDate today);

// A value in the words that users pick it by, in their language: yes or no for a Boolean. Any other text
// stays as it is.
QString valueInWords(FieldClass fieldClass, const QString &typed);

// A number of values, from 1; nothing when the text is none.
std::optional<int> readFilterCount(const QString &typed);

// The day that a text is or begins with; invalid when there is none.
QDate dayOf(const QString &typed);

// Whether a text is a moment, and not the first one of its day.
bool hasTimeOfDay(const QString &typed);

// What to tell somebody who typed no such value.
QString whyNoFilterValue(FieldClass fieldClass, const QString &typed);

// The values of a list. They are separated by commas, narrow or full-width, by "、" or "；", or, as cells
// copied from a spreadsheet are, by tabs or line breaks. One in double quotes may hold these itself. Empty
// values are left out.
QStringList splitFilterList(const QString &typed);

// A value as it can be typed into a list.
QString filterListItem(const QString &value);

} // namespace KOVAVSFDataGridLib
