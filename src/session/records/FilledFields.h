#pragma once

#include <set>

namespace KOVAVSFDataGridLib {

class Session;

// The fields of the open result, counted from 0, that the database gives a value where a new record has none.
// Empty also where it can't be asked. Waits, and a host may do anything meanwhile.
std::set<int> filledFields(Session &session);

} // namespace KOVAVSFDataGridLib
