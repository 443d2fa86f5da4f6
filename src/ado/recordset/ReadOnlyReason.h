#pragma once

#include "sql/select/SimpleSelect.h"

namespace ADODB {

// Why the rows of such a statement can't be written, as a text for the user; empty if they can.
QString readOnlyReason(KOVAVSFDataGridLib::SimpleSelect::Fault fault);

} // namespace ADODB
