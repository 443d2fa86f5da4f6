#pragma once

#include "sql/Engine.h"

#include <QtCore/QString>

// How to write LIKE conditions.
namespace KOVAVSFDataGridLib {

// Whether LIKE accepts only texts: other types must be cast, and pictures can't be searched.
bool likesTextsOnly(Engine engine);

// The field in a form that LIKE accepts, whatever its type.
QString likeOperand(Engine engine, const QString &field);

// The same, with the text that is shown where the engine's cast writes another one: that of a network address
// has its mask in PostgreSQL.
QString shownOperand(Engine engine, const QString &field);

// The same for an 8-byte floating point field: LIKE must see the digits that are shown, at most 15, but
// engines that cast write more.
QString likeOperandOfDouble(Engine engine, const QString &field);

// The same for the database's money type, of which no zeros are shown at the end.
QString likeOperandOfMoney(Engine engine, const QString &field);

// A pattern for LIKE without ESCAPE: "%" and "_" in the text are wildcards, a backslash is literal.
QString likePattern(Engine engine, QString text);

// Whether a text that is LIKE this pattern is equal to it.
bool likesOnlyEqualTexts(Engine engine, const QString &pattern);

// `field` LIKE the literal text, with anything before or after it.
enum class Anchor { Begin, End, None };
QString like(const Dialect &dialect, const QString &field, const QString &text, Anchor anchor);

} // namespace KOVAVSFDataGridLib
