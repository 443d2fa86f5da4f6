#pragma once

#include "support/SampleFiles.h"

#include "ado/Connection.h"
#include "ado/Recordset.h"

#include <QtCore/QString>
#include <QtCore/QTemporaryDir>

#include <memory>

namespace AdoTest {

std::shared_ptr<ADODB::Connection> openAccess(const QString &path);
std::shared_ptr<ADODB::Recordset> query(const std::shared_ptr<ADODB::Connection> &connection,
                                        const QString &sql);
// The path of a sample file, or of the generated one; empty if it is not available.
QString samplePath(const QString &name, const QTemporaryDir &folder);
inline constexpr char writtenSample[] = "written.mdb";
// Writes bytes to a file in the folder and returns its path.
QString writeFile(const QTemporaryDir &folder, const QByteArray &bytes, const QString &name);
// All cells, with columns separated by | and records by a line break.
QString cells(const std::shared_ptr<ADODB::Connection> &connection, const QString &sql);

} // namespace AdoTest

// Skips the test if a sample is missing.
#define REQUIRE_SAMPLE(path, name)                                                                           \
    const QString path = KovaTest::sampleFile(QStringLiteral(name));                                         \
    if (path.isEmpty())                                                                                      \
    GTEST_SKIP() << name " is not here; see sampleFile()"
