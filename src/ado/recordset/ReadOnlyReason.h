#pragma once

#include "sql/select/SimpleSelect.h"

namespace ADODB {

// Why the rows of such a statement can't be written back, for a person to read; empty when they can.
QString readOnlyReason(KOVAVSFDataGridLib::SimpleSelect::Fault fault);

} // namespace ADODB
