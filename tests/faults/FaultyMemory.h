#pragma once

#include <QtCore/QtGlobal>

namespace KovaTest {

// The allocations of SQLite and C++'s `new`; any one of them can be made to fail.
namespace FaultyMemory {

// Before SQLite is used for the first time.
void install();
// The request with this number, counted from 1 from now on, fails, and all after it where `stays` is true.
void failAt(qint64 request, bool stays);
void stopFailing();
// Whether one has failed since failAt().
bool hasFailed();

} // namespace FaultyMemory

} // namespace KovaTest
