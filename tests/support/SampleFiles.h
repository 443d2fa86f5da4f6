#pragma once

#include <QtCore/QString>

namespace KovaTest {

// The path of a database file for tests; empty if there is none. Searched in the folder KOVA_TEST_DATA if
// that is set, else in shared/data beside or above the sources.
QString sampleFile(const QString &name);

} // namespace KovaTest
