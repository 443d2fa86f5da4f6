#pragma once

#include "sql/Engine.h"

#include <QtCore/QString>

// Writes names in statements and reads them.
namespace KOVAVSFDataGridLib {

// A letter or "_", followed by letters and numbers of any script, "_", "$" and "#".
bool isPlainName(const QString &name);

// The name of a field or table, as the database reports it, in the form for SQL: bare if the engine then
// reads the same name, otherwise quoted. A name can need quotes because of its characters, because it is a
// reserved word, or because the engine would change its case.
QString writtenName(const Dialect &dialect, const QString &name);

// The name in the engine's quotes, even if it needs none. Quotes inside are doubled.
QString quotedName(const Dialect &dialect, const QString &name);

// The same if the host declares Access: in brackets, if the engine understands them. For an unknown engine
// the name inside is unchanged, because such an engine may not understand doubled brackets.
QString nameInBrackets(const Dialect &dialect, const QString &name);

// Whether two names reported by the database are the same to it.
bool isOneName(const Dialect &dialect, const QString &a, const QString &b);

// Whether names are written in brackets: the host declares Access, and the engine, if known, understands
// them.
bool takesBrackets(const Dialect &dialect);

// The text between two quote characters. The closing one is doubled inside the text.
QString enclosed(QChar opening, QString name, QChar closing);
// The same without doubling, for an unknown
// engine, which may not understand doubled quotes.
QString enclosedAsIs(QChar opening, const QString &name, QChar closing);

// The character that ends a string or name quoted with `opening`; null for any other character.
QChar closingQuote(QChar opening);

// The last part of a name in a statement, without its quotes: "Name" for dbo.T."Name". Empty if a quoted
// alias follows.
QString lastNamePart(const QString &writtenName);

// The text with each [name] outside quotes replaced by "name".
QString bracketsToQuotes(const QString &text);

} // namespace KOVAVSFDataGridLib
