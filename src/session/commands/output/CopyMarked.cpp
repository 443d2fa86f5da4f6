#include "session/commands/output/CopyMarked.h"

#include "ado/Recordset.h"
#include "export/TableMimeData.h"
#include "export/writers/TabTextWriter.h"
#include "session/Session.h"
#include "session/SessionMessages.h"
#include "session/SessionWindow.h"
#include "session/records/LongWork.h"

namespace KOVAVSFDataGridLib {

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
    std::vector<ADODB::DataTypeEnum> types;
    for (const ExportColumn &column : columns)
        types.push_back(column.type);
    session.window().putOnClipboard(
        std::make_unique<TableMimeData>(writer.text(), std::move(types), hasHeadings));
}

// As in the list: one line per field with name and value. The headings are the names.
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
    session.window().putOnClipboard(std::make_unique<TableMimeData>(
        text, std::vector<ADODB::DataTypeEnum>(hasNames ? 2 : 1, ADODB::adVarWChar), false));
}

} // namespace

void copyMarked(Session &session, bool hasHeadings)
{
    if (session.window().isSingleRecordShown())
        copyFields(session, hasHeadings);
    else
        copyCells(session, hasHeadings);
}

} // namespace KOVAVSFDataGridLib
