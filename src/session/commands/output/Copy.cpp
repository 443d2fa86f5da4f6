#include "ado/Error.h"
#include "ado/Recordset.h"
#include "ado/values/NumericTypes.h"
#include "export/TableMimeData.h"
#include "export/writers/TabTextWriter.h"
#include "session/Questions.h"
#include "session/Session.h"
#include "session/SessionMessages.h"
#include "session/SessionWindow.h"
#include "session/commands/Command.h"
#include "session/commands/CommandKeys.h"
#include "session/records/LongWork.h"

// Puts the marked cells on the clipboard, with or without their headings.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

void copyCells(Session &session, bool hasHeadings)
{
    const std::shared_ptr<ADODB::Recordset> recordset = session.result().recordset();
    const RecordRange range = markedRecords(session);
    const ExportColumns columns = exportColumnsOf(session, session.window().markedCells().columns);
    if (range.count() < 1 || columns.empty())
        return;
    TabTextWriter writer(hasHeadings);
    const bool isWhole =
        writeUnderProgress(session, SessionMessages::RecordsCopied, range, [&](const auto &shouldContinue) {
            return writeRecords(*recordset, range, columns, writer, shouldContinue);
        });
    if (!isWhole)
        return;
    std::vector<bool> isNumeric;
    for (const ExportColumn &column : columns)
        isNumeric.push_back(ADODB::isNumericType(column.type));
    session.window().putOnClipboard(
        std::make_unique<TableMimeData>(writer.text(), std::move(isNumeric), hasHeadings));
}

// As the list has it: a line for each field, its name beside its value. The headings are the names.
void copyFields(Session &session, bool hasHeadings)
{
    const MarkedFields marked = session.window().markedFields();
    const bool hasNames = marked.hasNames || hasHeadings;
    if (marked.fields.empty())
        return;
    QByteArray text;
    for (const MarkedFields::Field &field : marked.fields) {
        if (hasNames) {
            TabTextWriter::appendValue(text, field.name.toUtf8());
            text += '\t';
        }
        TabTextWriter::appendValue(text, field.text.toUtf8());
        text += "\r\n";
    }
    if (marked.fields.size() == 1 && !hasNames)
        text = marked.fields.front().text.toUtf8();
    session.window().putOnClipboard(
        std::make_unique<TableMimeData>(text, std::vector<bool>(hasNames ? 2 : 1, false), false));
}

void copy(Session &session, bool hasHeadings)
{
    if (session.window().isSingleRecordShown())
        copyFields(session, hasHeadings);
    else
        copyCells(session, hasHeadings);
}

const Command::Registration plain({
    .key = u"Copy"_s,
    .shortcut = u"Ctrl+C"_s,
    .menu = {17, Command::tr("复制(&Y)")},
    .isInViewer = true,
    .viewerMenu = {9, Command::tr("复制(&C)")},
    .needs = Needs::Records,
    .record = Record::Stays,
    .run = [](Session &session) { copy(session, false); },
});

const Command::Registration withHeadings({
    .key = u"CopyWithHeadings"_s,
    .shortcut = u"Ctrl+Shift+C"_s,
    .menu = {18, Command::tr("复制（含标题）(&H)")},
    .isInViewer = true,
    .viewerMenu = {10, Command::tr("复制（含标题）(&H)")},
    .needs = Needs::Records,
    .record = Record::Stays,
    .run = [](Session &session) { copy(session, true); },
});

} // namespace

} // namespace KOVAVSFDataGridLib
