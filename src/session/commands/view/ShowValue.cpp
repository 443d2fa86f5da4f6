#include "session/commands/view/ShowValue.h"

#include "ado/Recordset.h"
#include "ado/ValueText.h"
#include "language/GroupedNumber.h"
#include "session/Session.h"
#include "session/SessionMessages.h"
#include "session/commands/Command.h"
#include "session/commands/CommandKeys.h"
#include "session/pages/Pages.h"

// Shows the current cell's value in a separate window.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

bool isBinary(ADODB::DataTypeEnum type)
{
    return type == ADODB::adBinary || type == ADODB::adVarBinary || type == ADODB::adLongVarBinary;
}

} // namespace

std::optional<CellValue> currentValue(Session &session)
{
    if (!session.result().hasRecords())
        return std::nullopt;
    const ADODB::Recordset &recordset = *session.result().recordset();
    const int col = session.window().currentCol();
    const qint64 record = session.pages().recordOfRow(session.window().Row());
    if (session.window().Row() < 1 || col < 1 || col > recordset.Fields().Count())
        return std::nullopt;
    const ADODB::Field &field = recordset.Fields().Item(col - 1);
    // In the single-record list, this includes changes that are not yet saved.
    const QVariant value =
        session.window().isSingleRecordShown() ? field.Value() : recordset.CellValue(record, col - 1);
    CellValue shown;
    shown.field = field.Name();
    shown.place = SessionMessages::PlaceOfValue.arg(field.Name(), grouped(session.window().Row()));
    shown.isNull = !value.isValid();
    // An untyped database can have binary values in other fields too.
    shown.isBinary = isBinary(field.Type()) || value.typeId() == QMetaType::QByteArray;
    if (shown.isBinary)
        shown.bytes = value.toByteArray();
    else
        shown.text = ADODB::ValueText(value);
    return shown;
}

namespace {

void showValue(Session &session)
{
    if (const auto value = currentValue(session))
        session.window().showValue(*value);
}

const Command::Registration showValueCommand({
    .key = CommandKeys::ShowValue,
    .shortcut = u"F3"_s,
    .menu = {28, Command::tr("查看内容(&V)…")},
    .isInViewer = true,
    .viewerMenu = {17, Command::tr("查看内容(&V)…")},
    .needs = Needs::Records,
    .record = Record::Stays,
    .run = showValue,
});

} // namespace

} // namespace KOVAVSFDataGridLib
