#pragma once

#include "ado/Connection.h"
#include "ado/Recordset.h"

#include <QtCore/QString>
#include <QtCore/QTemporaryDir>

#include <memory>

namespace AdoTest {

// The path of an Access file that the tests read; empty where there is none. They are looked for in the
// folder that KOVA_TEST_DATA names, else in shared/data above the sources.
QString accessSample(const QString &name);

std::shared_ptr<ADODB::Connection> openAccess(const QString &path);
std::shared_ptr<ADODB::Recordset> query(const std::shared_ptr<ADODB::Connection> &connection,
                                        const QString &sql);
// All cells, columns parted by | and records by a line break.
QString cells(const std::shared_ptr<ADODB::Connection> &connection, const QString &sql);

} // namespace AdoTest

// Leaves the test, saying so, where a sample is missing.
#define REQUIRE_SAMPLE(path, name)                                                                           \
    const QString path = AdoTest::accessSample(QStringLiteral(name));                                        \
    if (path.isEmpty())                                                                                      \
    GTEST_SKIP() << name " is not here; see accessSample()"
