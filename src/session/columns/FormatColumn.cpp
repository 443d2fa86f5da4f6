#include "ado/Recordset.h"
#include "ado/rows/RowReader.h"
#include "ado/values/NumericTypes.h"
#include "session/Questions.h"
#include "session/ResultWatch.h"
#include "session/Session.h"
#include "session/SessionMessages.h"
#include "session/SessionWindow.h"
#include "session/columns/ColumnCommand.h"

// Chooses the display format of a column.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

ADODB::DataTypeEnum typeOf(Session &session, int col)
{
    return session.result().recordset()->Fields().Item(col - 1).Type();
}

// Takes the first text that there is, so that the user sees what a choice does.
void addSample(FormatRequest &request, const ADODB::Recordset &recordset, int col)
{
    constexpr qint64 mostLookedAt = 1000;
    for (qint64 record = 1; record <= std::min(recordset.RecordCount(), mostLookedAt); ++record) {
        if (recordset.IsNull(record, col - 1))
            continue;
        request.sample = recordset.CellText(record, col - 1);
        request.decimals = ADODB::RowReader::lostDecimals(recordset, record, col - 1);
        return;
    }
}

void chooseFormat(Session &session, int col)
{
    const ResultWatch watch(session);
    const QString heading = session.window().Headings().value(col - 1);
    FormatRequest request{heading, typeOf(session, col) == ADODB::adBoolean,
                          session.window().columnFormat(heading)};
    addSample(request, *session.result().recordset(), col);
    const std::optional<QString> format = session.questions().askFormat(request);
    if (format && watch.isUntouched() && col < session.window().Cols())
        session.window().putColumnFormat(heading, *format);
}

const ColumnCommand::Registration formatColumnCommand({
    .key = u"FormatColumn"_s,
    .place = 500,
    .caption = ColumnCommand::tr("格式(&O)…"),
    .run = chooseFormat,
    .whyNot =
        [](Session &session, int col) {
            const bool hasFormats =
                typeOf(session, col) == ADODB::adBoolean || ADODB::isNumericType(typeOf(session, col));
            return hasFormats ? QString() : SessionMessages::NoFormat;
        },
});

} // namespace

} // namespace KOVAVSFDataGridLib
