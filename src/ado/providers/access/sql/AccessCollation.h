#pragma once

#include <QtCore/QByteArrayView>
#include <QtCore/QString>

struct sqlite3;

// How Access compares texts: case-insensitively, in any script.
namespace ADODB::AccessCollation {

inline constexpr char textName[] = "ACCESS_TEXT";
inline constexpr char dateName[] = "ACCESS_DATE";

// Negative, zero or positive. Unequal texts are ordered by code point, unlike in AccessOrder.
int compareTexts(QByteArrayView a, QByteArrayView b);
// The same for dates in the format of AccessValue. A date without a time means 0:00.
int compareDates(QByteArrayView a, QByteArrayView b);
// The part of a date that is compared.
QByteArrayView comparedDate(QByteArrayView date);

// Registers both collations, LIKE, and GLOB, which matches Access's own LIKE patterns. Texts are sorted by
// the rules of `language`; see AccessOrder.
void install(sqlite3 *db, quint16 language);

} // namespace ADODB::AccessCollation
