#pragma once

#include <QtCore/QString>

// What the engines behind a connection do differently where a condition compares values. How names are
// written is another matter; see AllDBType.
namespace KOVAVSFDataGridLib {

enum class Engine { Other, SQLite, PostgreSQL, MySQL };

// By the name that the engine's driver gives it, whatever version or edition stands behind it. MariaDB is
// counted as MySQL.
Engine EngineNamed(const QString &name);

// Whether LIKE stands behind texts only: others are to be cast, and pictures can't be searched at all.
bool LikesTextsOnly(Engine engine);

// The field as it can stand before LIKE, whatever its type is.
QString LikeOperand(Engine engine, const QString &field);

// The text in apostrophes, such that the engine reads exactly this text.
QString TextLiteral(Engine engine, QString text);

// The text as a pattern of LIKE that stands without ESCAPE: "%" and "_" are wildcards, a backslash is itself.
QString LikePattern(Engine engine, QString text);

} // namespace KOVAVSFDataGridLib
