#pragma once

#include "sql/Engine.h"

#include <QtCore/QByteArray>
#include <QtCore/QDateTime>
#include <QtCore/QString>

// Writes values as SQL literals.
namespace KOVAVSFDataGridLib {

// The text as a literal that the engine reads as exactly this text.
QString textLiteral(const Dialect &dialect, QString text);

// The same, but concatenated from several literals if the text contains words that begin a clause, because
// statements are split at these words wherever they occur.
QString textWithoutClauses(const Dialect &dialect, const QString &text);

// What is no decimal number and a number all the same to the engine: NaN and the infinities in PostgreSQL.
// Empty for any other text.
QString numberWordLiteral(const Dialect &dialect, const QString &text);
// A negative time, or one of more than a day, as MySQL's type has them. Empty for any other text.
QString durationLiteral(const Dialect &dialect, const QString &text);

QString dateLiteral(const Dialect &dialect, QDate date);
// `finer`: the decimals of the second after the third one, without trailing zeros.
QString timeLiteral(const Dialect &dialect, QTime time, const QString &finer = {});
QString momentLiteral(const Dialect &dialect, const QDateTime &moment, const QString &finer = {});
// The same in a time zone, given as an offset such as +08. Empty for an engine without a known literal for
// that.
QString zonedMomentLiteral(const Dialect &dialect, const QDateTime &moment, const QString &finer,
                           const QString &zone);

// The size of a floating point column: 4 or 8 bytes.
enum class FloatSize { Single, Double };

// The range of numbers that are shown as this one. A double is shown with 15 digits, a float with the fewest
// digits that identify it, or with 6 on MySQL. Computed numbers are rarely exactly what is shown. Both bounds
// are empty for zero, and for a number with more digits than are ever shown.
struct NumberRange
{
    QString from;
    QString to;

    bool isEmpty() const { return from.isEmpty(); }
};
NumberRange rangeShownAs(const QString &number, FloatSize size, Engine engine);

// Whether the text is a number in SQL syntax.
bool isNumberText(const QString &text);

// A date or timestamp field in a form that can be compared with dateLiteral or momentLiteral. SQLite stores
// them as texts in several formats; texts with the same meaning must be equal. A date there can have a time,
// which is shown with it: with dateOperand only midnight equals the date, with dayOperand any time on that
// day is neither less nor greater.
QString dateOperand(const Dialect &dialect, const QString &field);
QString dayOperand(const Dialect &dialect, const QString &field);
QString momentOperand(const Dialect &dialect, const QString &field);

// Whether a date field can contain times too.
bool daysHaveTimes(const Dialect &dialect);

// A money field in a form that can be compared with a number: PostgreSQL compares money only with money.
QString moneyOperand(Engine engine, const QString &field);

// The date of a date or timestamp field as a value. The
// field itself if there is no known way to write that.
QString dayValue(const Dialect &dialect, const QString &field);

// Literals for a script that another program runs: without ODBC escapes, and for the likely engine if the
// engine is unknown. `text` is the date or timestamp in ISO format.
QString scriptText(Dialect dialect, const QString &text);
QString scriptBytes(const Dialect &dialect, const QByteArray &bytes);
QString scriptBoolean(const Dialect &dialect, bool value);
QString scriptDate(const Dialect &dialect, const QString &text);
QString scriptMoment(const Dialect &dialect, const QString &text);

} // namespace KOVAVSFDataGridLib
