#pragma once

#include "sql/AllDBType.h"
#include "sql/Engine.h"

#include <QtCore/QDateTime>
#include <QtCore/QString>
#include <QtCore/QStringList>

// How names and values are written in the conditions of each database.
namespace KOVAVSFDataGridLib::FilterSql {

// `database` decides how names are written, and together with `isOdbc` how values are: what is not reached
// through ODBC (SQLite and Access files) is read by SQLite. `engine` says more, where it is known.
struct Dialect
{
    AllDBType database = dbAccess;
    bool isOdbc = false;
    // Whether a backslash in a text is the beginning of an escape, as MariaDB has it unless it is told not
    // to.
    bool escapesByBackslash = false;
    Engine engine = Engine::Other;
};

// Reads off the connection string whether ODBC is used. A malformed one counts as not. Backslashes are left
// to FilterSource, which can ask the database.
Dialect DialectOf(AllDBType database, const QString &connectionString);

// The name, in brackets (for dbAccess) or double quotes where it needs them, be it for its characters or
// because it is a word of the language.
QString FieldName(const Dialect &dialect, const QString &name);

// The text as a literal, or as several put together where the statement's own words would be found in one.
QString Text(const Dialect &dialect, const QString &text);
QString Date(const Dialect &dialect, QDate date);
QString Time(const Dialect &dialect, QTime time);
QString Moment(const Dialect &dialect, const QDateTime &moment);

// `field` LIKE the text, matched as itself, with anything before or behind it.
enum class Anchor { Begin, End, None };
QString Like(const Dialect &dialect, const QString &field, const QString &text, Anchor anchor);

QString IsTrue(const Dialect &dialect, const QString &field, bool wanted);

// A text field that holds no character, or some.
QString IsEmptyText(const Dialect &dialect, const QString &field);
QString IsNotEmptyText(const Dialect &dialect, const QString &field);

// At most `count` different values of a field, in order, without Null.
QString DistinctValues(const Dialect &dialect, const QString &field, const QString &table, int count);

// One condition of several.
struct Term
{
    QString condition;
    int opens = 0;       // brackets opened before it
    int closes = 0;      // brackets closed behind it
    bool orNext = false; // joined to the next one by OR rather than AND
};

// The terms as one text that can be joined to further conditions by AND.
QString Join(const QList<Term> &terms);

// Position of the first term whose brackets have no counterpart; -1 when all match.
qsizetype UnmatchedBracket(const QList<Term> &terms);

} // namespace KOVAVSFDataGridLib::FilterSql
