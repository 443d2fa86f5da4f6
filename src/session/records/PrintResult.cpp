#include "session/records/PrintResult.h"

#include "ado/Error.h"
#include "ado/Recordset.h"
#include "ado/values/NumericTypes.h"
#include "query/derivation/SqlText.h"
#include "session/Session.h"
#include "session/SessionMessages.h"
#include "session/SessionWindow.h"
#include "session/records/ExportResult.h"
#include "session/records/LongWork.h"
#include "session/statement/ShownStatement.h"

#include <algorithm>

namespace KOVAVSFDataGridLib {

PrintRequest printRequestOf(Session &session)
{
    const std::vector<int> shown = session.window().shownColumns();
    PrintRequest request;
    request.title = GetSQLTableName(session.shown().text()).simplified();
    request.file = fileNameOf(session);
    request.all = {1, session.result().recordset()->RecordCount()};
    request.marked = markedRecords(session);
    request.columns = exportColumnsOf(session, shown);
    for (ExportColumn &column : request.columns)
        column.fittingWidth = session.window().fittingWidth(column.field + 1) / twipsOfPixel;
    const QStringList headings = session.window().Headings();
    for (const int col : shown)
        request.formats.push_back(
            ADODB::DisplayFormat::fromText(session.window().columnFormat(headings.at(col - 1)))
                .value_or(ADODB::DisplayFormat()));
    for (std::size_t i = 0; i < request.columns.size(); ++i)
        request.formats[i].leastDecimals =
            ADODB::decimalsOf(request.columns[i].type, request.columns[i].scale);
    return request;
}

bool printResult(Session &session, const PrintRequest &request, const PrintAnswer &what)
{
    const std::shared_ptr<ADODB::Recordset> recordset = session.result().recordset();
    const RecordRange &range = what.isMarkedOnly ? request.marked : request.all;
    try {
        return writeUnderProgress(
            session, SessionMessages::RecordsPrinted, range, [&](const auto &shouldContinue) {
                return writeRecords(*recordset, range, request.columns, *what.writer, shouldContinue);
            });
    } catch (const ADODB::Error &error) {
        session.questions().show(error.Description());
    }
    return false;
}

} // namespace KOVAVSFDataGridLib
