#pragma once

namespace KovaTest {

// The file system that SQLite uses; any call to it can be made to fail.
namespace FaultyDisk {

enum class Fault { Error, Full };

// From then on SQLite opens all files through it.
void install();
// The call with this number, counted from 1 from now on, fails, and all after it where `stays` is true.
void failAt(int call, Fault fault, bool stays);
void stopFailing();
bool hasFailed();

} // namespace FaultyDisk

} // namespace KovaTest
