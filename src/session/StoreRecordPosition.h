#pragma once

namespace ADODB {
class Recordset;
}

namespace KOVAVSFDataGridLib {

// Takes the number of records of an open recordset and the current one (0 at BOF, the last at EOF) into the
// shared values.
void StoreRecordPosition(const ADODB::Recordset &recordset);

} // namespace KOVAVSFDataGridLib
