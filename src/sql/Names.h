#pragma once

#include "sql/Engine.h"

#include <QtCore/QString>

// How names are written in statements and read from them.
namespace KOVAVSFDataGridLib {

// True for a letter or "_" followed by letters and numbers of any script, "_", "$" and "#".
bool isPlainName(const QString &name);

// The name of a field or table, as the database reports it, as a statement writes it: bare where the engine
// then reads this very name, else quoted. A name can need quotes for its characters, because it is a word of
// the language, or because the engine would change its letters' case.
QString writtenName(const Dialect &dialect, const QString &name);

// The name in the engine's quotes, whether it needs them or not. Quotes inside are doubled.
QString quotedName(const Dialect &dialect, const QString &name);

// The same where the host declares Access: a name in brackets, if the engine reads these. For an unknown
// engine it stays as it is inside them, because such an engine may not read a doubled bracket as one.
QString nameInBrackets(const Dialect &dialect, const QString &name);

// Whether two names, as the database reports them, are one to it.
bool isOneName(const Dialect &dialect, const QString &a, const QString &b);

// Whether names are put in brackets: the host declares Access, and the engine reads them too as far as it is
// known.
bool takesBrackets(const Dialect &dialect);

// The text between two quote characters, the closing one doubled inside.
QString enclosed(QChar opening, QString name, QChar closing);
// The same with quotes inside left as they are, for an unknown engine, which may not read a doubled one as
// one.
QString enclosedAsIs(QChar opening, const QString &name, QChar closing);

// The character that ends a quoted text or name which begins with this one; null for any other character.
QChar closingQuote(QChar opening);

// The last part of a written name without its quotes: "Name" for dbo.T."Name". Empty when a quoted alias
// follows it.
QString lastNamePart(const QString &writtenName);

// The text with each [name] outside quotes written "name".
QString bracketsToQuotes(const QString &text);

} // namespace KOVAVSFDataGridLib
