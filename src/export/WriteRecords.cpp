#include "export/WriteRecords.h"

#include "ado/Error.h"
#include "ado/rows/RowReader.h"
#include "export/ExportTexts.h"

#include <algorithm>

namespace KOVAVSFDataGridLib {

namespace {

constexpr qint64 rowsBetweenLooks = 64;

} // namespace

bool writeRecords(const ADODB::Recordset &recordset, const RecordRange &range, const ExportColumns &columns,
                  RecordWriter &writer, const std::function<bool(qint64)> &shouldContinue)
{
    int fields = 0;
    for (const ExportColumn &column : columns)
        fields = std::max(fields, column.field + 1);
    ADODB::RowReader reader(recordset, fields);
    writer.begin(columns);
    for (qint64 record = range.first; record <= range.last; ++record) {
        const qint64 written = record - range.first;
        if (written % rowsBetweenLooks == 0 && !shouldContinue(written))
            return false;
        const std::vector<ADODB::RawValue> *const cells = reader.read(record);
        if (!cells)
            throw ADODB::Error(ADODB::adErrNoCurrentRecord, ExportTexts::RecordGone);
        writer.row(*cells);
    }
    writer.end();
    return true;
}

} // namespace KOVAVSFDataGridLib
