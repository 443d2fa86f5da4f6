#pragma once

#include <QtCore/QByteArrayView>
#include <QtCore/QString>

struct sqlite3;

// How Access compares texts: letter case does not count, in any script.
namespace ADODB::AccessCollation {

inline constexpr char textName[] = "ACCESS_TEXT";
inline constexpr char dateName[] = "ACCESS_DATE";

// Negative, zero or positive; by code points, unlike AccessOrder, where texts are not equal.
int compareTexts(QByteArrayView a, QByteArrayView b);
// The same for dates as AccessValue writes them; one without a time is that day at 0:00.
int compareDates(QByteArrayView a, QByteArrayView b);
// A date as it is compared.
QByteArrayView comparedDate(QByteArrayView date);

// Offers both orders, by their names, LIKE, and GLOB as the LIKE of Access's own patterns. Texts
// are sorted as in that language; see AccessOrder.
void install(sqlite3 *db, quint16 language);

} // namespace ADODB::AccessCollation
