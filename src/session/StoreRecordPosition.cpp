#include "session/StoreRecordPosition.h"

#include "ado/Recordset.h"
#include "query/SharedValues.h"

#include <algorithm>

namespace KOVAVSFDataGridLib {

void StoreRecordPosition(const ADODB::Recordset &recordset)
{
    const qint64 count = recordset.RecordCount();
    qint64 position = 0;
    if (!recordset.isBOF())
        position = recordset.isEOF() ? count : recordset.AbsolutePosition();
    SharedValues &shared = SharedValues::instance();
    shared.recordCountSnapshot = static_cast<qint32>(count);
    shared.recordPosition = static_cast<qint32>(std::clamp<qint64>(position, 0, count));
}

} // namespace KOVAVSFDataGridLib
