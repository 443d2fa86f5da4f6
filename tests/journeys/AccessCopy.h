#pragma once

#include <QtCore/QString>

namespace KovaTest {

// Writes the tables of a SQLite file into an Access file, each column with the type of Access that its
// declared type means.
void copyToAccess(const QString &sqlitePath, const QString &accessPath);

} // namespace KovaTest
