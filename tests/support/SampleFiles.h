#pragma once

#include <QtCore/QString>

namespace KovaTest {

// The path of a database file that some tests read; empty where there is none. They are looked for in the
// folder that KOVA_TEST_DATA names, else in shared/data beside or above the sources.
QString sampleFile(const QString &name);

} // namespace KovaTest
