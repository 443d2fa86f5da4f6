#pragma once

#include <QtCore/QtGlobal>

#include <memory>
#include <optional>

namespace ADODB {

class Recordset;

// The records that a recordset has read so far while it is being opened, as an open, read-only recordset. It
// does not change afterwards, whatever happens to the other one. Call it from the progress callback. Null if
// there are no records yet, or if the provider can't show them before it has read all.
std::shared_ptr<const Recordset> recordsSoFar(const Recordset &opening);

// About how many records it will have, as far as the engine knows without counting them. Call it from the
// progress callback. No value in a short load, or if the engine can't tell.
std::optional<qint64> estimatedRecords(const Recordset &opening);

} // namespace ADODB
