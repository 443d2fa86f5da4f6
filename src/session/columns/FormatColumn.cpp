#include "ado/Recordset.h"
#include "ado/values/NumericTypes.h"
#include "session/Questions.h"
#include "session/ResultWatch.h"
#include "session/Session.h"
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

// The first text of the column, so that the user sees the effect of a choice.
QString sampleOf(Session &session, int col)
{
    const ADODB::Recordset &recordset = *session.result().recordset();
    constexpr qint64 mostLookedAt = 1000;
    for (qint64 record = 1; record <= std::min(recordset.RecordCount(), mostLookedAt); ++record) {
        if (!recordset.IsNull(record, col - 1))
            return recordset.CellText(record, col - 1);
    }
    return {};
}

void chooseFormat(Session &session, int col)
{
    const ResultWatch watch(session);
    const std::optional<QString> format = session.questions().askFormat(
        {session.window().Headings().value(col - 1), typeOf(session, col) == ADODB::adBoolean,
         session.window().columnFormat(col), sampleOf(session, col)});
    if (format && watch.isUntouched() && col < session.window().Cols())
        session.window().putColumnFormat(col, *format);
}

const ColumnCommand::Registration registration({
    .key = u"FormatColumn"_s,
    .place = 500,
    .caption = ColumnCommand::tr("格式(&O)…"),
    .run = chooseFormat,
    .canRun =
        [](Session &session, int col) {
            return typeOf(session, col) == ADODB::adBoolean || ADODB::isNumericType(typeOf(session, col));
        },
});

} // namespace

} // namespace KOVAVSFDataGridLib
