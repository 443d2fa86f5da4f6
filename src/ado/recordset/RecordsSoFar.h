#pragma once

#include <memory>

namespace ADODB {

class Recordset;

// What a recordset has read so far while it is being opened, as an open recordset of its own that can only be
// read. It stays as it is, whatever becomes of the other. To be called from the progress report; null when
// there are no records yet, or the provider can't show them before it has all.
std::shared_ptr<const Recordset> recordsSoFar(const Recordset &opening);

} // namespace ADODB
