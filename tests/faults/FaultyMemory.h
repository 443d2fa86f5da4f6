#pragma once

#include <QtCore/QtGlobal>

namespace KovaTest {

// The memory that SQLite and C++'s `new` take, of which any request can be made to fail.
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
