#pragma once

#include <QtCore/QString>

namespace KovaTest {

// The ODBC calls of the data access layer, any of which can be made to fail. The program defines these
// functions itself and forwards them to the driver manager.
namespace FaultyOdbc {

enum class Fault {
    NotDone, // the driver does nothing and reports an error
    Done,    // the call succeeds, but then reports an error
    Memory,  // it has no memory for it
    Lost     // the connection is gone, for this call and all that follow
};

// The call with this number, counted from 1 from now on, fails.
void failAt(int call, Fault fault);
void stopFailing();
// The name of the call that has failed since failAt(); empty when none has.
QString failed();

// How often a list of drivers or data sources was started.
int listsRead();

// What the driver says of a failed call.
inline const char *const words = "injected by the test";

} // namespace FaultyOdbc

} // namespace KovaTest
