#pragma once

#include "sql/Engine.h"

#include <QtCore/QByteArray>
#include <QtCore/QDateTime>
#include <QtCore/QString>

// How values are written in statements.
namespace KOVAVSFDataGridLib {

// The text in apostrophes, such that the engine reads exactly this text.
QString textLiteral(const Dialect &dialect, QString text);

// The same, as several literals put together where the text holds words that begin a clause: statements are
// taken apart at these words wherever they occur.
QString textWithoutClauses(const Dialect &dialect, const QString &text);

QString dateLiteral(const Dialect &dialect, QDate date);
// `finer` are the decimals of the second after the third one, without zeros at their end.
QString timeLiteral(const Dialect &dialect, QTime time, const QString &finer = {});
QString momentLiteral(const Dialect &dialect, const QDateTime &moment, const QString &finer = {});
// The same by a clock in this zone, an offset such as +08; empty for an engine of which no such literal is
// known.
QString zonedMomentLiteral(const Dialect &dialect, const QDateTime &moment, const QString &finer,
                           const QString &zone);

// What a floating column holds: 4 bytes or 8.
enum class FloatSize { Single, Double };

// The bounds of the numbers that are shown as this one: a double with its first 15 digits, a float with the
// fewest digits that say which float it is, and one of MySQL with 6. Computed numbers rarely are exactly what
// is shown. Both empty for zero, and for a number with more digits than are ever shown.
struct NumberRange
{
    QString from;
    QString to;

    bool isEmpty() const { return from.isEmpty(); }
};
NumberRange rangeShownAs(const QString &number, FloatSize size, Engine engine);

// Whether the text is a number as statements write it.
bool isNumberText(const QString &text);

// A field of days or moments as it is compared with DateLiteral or MomentLiteral. SQLite keeps them as texts
// of several forms, of which those that mean the same are to be equal. A day there can have a time, which is
// shown with it: by dateOperand only midnight is the day itself, by dayOperand any time of it is neither
// before nor after it.
QString dateOperand(const Dialect &dialect, const QString &field);
QString dayOperand(const Dialect &dialect, const QString &field);
QString momentOperand(const Dialect &dialect, const QString &field);

// Whether a field of days can hold moments as well.
bool daysHaveTimes(const Dialect &dialect);

// A field of money as it is compared with a number: PostgreSQL compares its money with money alone.
QString moneyOperand(Engine engine, const QString &field);

// The day of a field of days or moments as a value of its own; the field itself where no way to write it is
// known.
QString dayValue(const Dialect &dialect, const QString &field);

// Literals for a script that another program runs: without ODBC's escapes, and for the likely engine where
// the engine isn't known. `text` is the date or the moment in ISO form.
QString scriptText(Dialect dialect, const QString &text);
QString scriptBytes(const Dialect &dialect, const QByteArray &bytes);
QString scriptBoolean(const Dialect &dialect, bool value);
QString scriptDate(const Dialect &dialect, const QString &text);
QString scriptMoment(const Dialect &dialect, const QString &text);

} // namespace KOVAVSFDataGridLib
