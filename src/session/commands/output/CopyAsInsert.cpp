#include "ado/Recordset.h"
#include "query/derivation/SqlText.h"
#include "session/Session.h"
#include "session/SessionWindow.h"
#include "session/commands/Command.h"
#include "session/commands/output/MarkedRecords.h"
#include "session/records/LongWork.h"
#include "session/records/SqlValue.h"
#include "session/statement/ShownStatement.h"
#include "sql/Names.h"

// Copies the marked records to the clipboard as INSERT statements.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

// The name of a column in its table, if the database reports it.
QString nameInTable(const ADODB::Field &field)
{
    return field.BaseColumnName().isEmpty() ? field.Name() : field.BaseColumnName();
}

// The table of all columns if there is only one, otherwise what the statement selects from.
QString tableOf(Session &session, const ExportColumns &columns)
{
    const ADODB::Fields &fields = session.result().recordset()->Fields();
    const QString table = fields.Item(columns.front().field).BaseTableName();
    for (const ExportColumn &column : columns) {
        if (fields.Item(column.field).BaseTableName() != table)
            return GetSQLTableName(session.shown().text()).trimmed();
    }
    return table.isEmpty() ? GetSQLTableName(session.shown().text()).trimmed()
                           : writtenName(dialectFor(session), table);
}

QString insertBegin(Session &session, const ExportColumns &columns)
{
    const ADODB::Fields &fields = session.result().recordset()->Fields();
    QStringList names;
    for (const ExportColumn &column : columns)
        names.append(writtenName(dialectFor(session), nameInTable(fields.Item(column.field))));
    return u"INSERT INTO "_s + tableOf(session, columns) + " ("_L1 + names.join(", "_L1) + ") VALUES ("_L1;
}

void copyAsInsert(Session &session)
{
    const std::shared_ptr<ADODB::Recordset> recordset = session.result().recordset();
    const ExportColumns columns = exportColumnsOf(session, session.window().shownColumns());
    if (columns.empty())
        return;
    const Dialect dialect = dialectFor(session);
    const QString begin = insertBegin(session, columns);
    QString text;
    const bool isWhole = forEachMarkedRecord(session, [&](qint64 record) {
        text += begin;
        for (const ExportColumn &column : columns)
            text += sqlValue(dialect, markedValue(session, *recordset, record, column.field)) + ", "_L1;
        text.chop(2);
        text += ");\n"_L1;
    });
    if (isWhole && !text.isEmpty())
        putTextOnClipboard(session, text);
}

const Command::Registration copyAsInsertCommand({
    .key = u"CopyAsInsert"_s,
    .shortcut = u"Ctrl+Alt+C"_s,
    .menu = {19, Command::tr("INSERT 语句(&I)"), false, MenuGroup::CopyAs},
    .isInViewer = true,
    .viewerMenu = {11, Command::tr("INSERT 语句(&I)"), false, MenuGroup::CopyAs},
    .needs = Needs::Records,
    .record = Record::Stays,
    .run = copyAsInsert,
});

} // namespace

} // namespace KOVAVSFDataGridLib
