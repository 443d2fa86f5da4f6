#pragma once

#include "sql/Engine.h"

#include <QtCore/QString>

// How LIKE is written.
namespace KOVAVSFDataGridLib {

// Whether LIKE takes texts only: others are to be cast, and pictures can't be searched at all.
bool likesTextsOnly(Engine engine);

// The field as LIKE takes it, whatever its type is.
QString likeOperand(Engine engine, const QString &field);

// The same, with the text that is shown where the engine's cast writes another one: that of a network address
// has its mask in PostgreSQL.
QString shownOperand(Engine engine, const QString &field);

// The same for a field of 8-byte floating numbers: LIKE is to see the digits that are shown, 15 at most, of
// which engines that cast write more.
QString likeOperandOfDouble(Engine engine, const QString &field);

// The text as a pattern of LIKE without ESCAPE: "%" and "_" are wildcards, a backslash is itself.
QString likePattern(Engine engine, QString text);

// `field` LIKE the text, matched as itself, with anything before or after it.
enum class Anchor { Begin, End, None };
QString like(const Dialect &dialect, const QString &field, const QString &text, Anchor anchor);

} // namespace KOVAVSFDataGridLib
