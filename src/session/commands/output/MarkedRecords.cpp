#include "session/commands/output/MarkedRecords.h"

#include "ado/Recordset.h"
#include "query/clsFilterManagement.h"
#include "session/Session.h"
#include "session/SessionMessages.h"
#include "session/SessionWindow.h"
#include "session/records/LongWork.h"

#include <QtCore/QMimeData>

namespace KOVAVSFDataGridLib {

Dialect dialectFor(Session &session)
{
    return dialectOf(session.filterManager().DBType(), session.result().engine());
}

QVariant markedValue(Session &session, const ADODB::Recordset &recordset, qint64 record, int field)
{
    return session.window().isSingleRecordShown() ? recordset.Fields().Item(field).Value()
                                                  : recordset.CellValue(record, field);
}

bool forEachMarkedRecord(Session &session, const std::function<void(qint64 record)> &handle)
{
    const RecordRange range = markedRecords(session);
    return writeUnderProgress(session, SessionMessages::RecordsCopied, range,
                              [&](const auto &shouldContinue) {
                                  for (qint64 record = range.first; record <= range.last; ++record) {
                                      if (!shouldContinue(record - range.first))
                                          return false;
                                      handle(record);
                                  }
                                  return true;
                              });
}

void putTextOnClipboard(Session &session, const QString &text)
{
    auto data = std::make_unique<QMimeData>();
    data->setText(text);
    session.window().putOnClipboard(std::move(data));
}

} // namespace KOVAVSFDataGridLib
