#include "ado/Recordset.h"
#include "export/TableMimeData.h"
#include "query/derivation/SqlText.h"
#include "session/Session.h"
#include "session/SessionMessages.h"
#include "session/SessionWindow.h"
#include "session/commands/Command.h"
#include "session/records/LongWork.h"
#include "session/records/SqlValue.h"
#include "sql/Names.h"

#include <QtCore/QMimeData>
#include <QtCore/QSet>

// Puts the marked records on the clipboard as statements that insert them, or the values of the current
// column as a list for IN.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

Dialect dialectFor(Session &session)
{
    return dialectOf(session.filterManager().DBType(), session.result().engine());
}

// In the list of a single record what was written into it and is not saved yet counts as well.
QVariant valueOf(Session &session, const ADODB::Recordset &recordset, qint64 record, int field)
{
    return session.window().isSingleRecordShown() ? recordset.Fields().Item(field).Value()
                                                  : recordset.CellValue(record, field);
}

// The name of a column in its table, where the database says so.
QString nameInTable(const ADODB::Field &field)
{
    return field.BaseColumnName().isEmpty() ? field.Name() : field.BaseColumnName();
}

// The one table that all columns come from, else what the statement reads.
QString tableOf(Session &session, const ExportColumns &columns)
{
    const ADODB::Fields &fields = session.result().recordset()->Fields();
    const QString table = fields.Item(columns.front().field).BaseTableName();
    for (const ExportColumn &column : columns) {
        if (fields.Item(column.field).BaseTableName() != table)
            return GetSQLTableName(session.statement()).trimmed();
    }
    return table.isEmpty() ? GetSQLTableName(session.statement()).trimmed()
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

void putText(Session &session, const QString &text)
{
    auto data = std::make_unique<QMimeData>();
    data->setText(text);
    session.window().putOnClipboard(std::move(data));
}

// Calls `take` for each marked record; false when the user cancelled.
bool forEachMarked(Session &session, const std::function<void(qint64 record)> &take)
{
    const RecordRange range = markedRecords(session);
    return writeUnderProgress(session, SessionMessages::RecordsCopied, range,
                              [&](const auto &shouldContinue) {
                                  for (qint64 record = range.first; record <= range.last; ++record) {
                                      if (!shouldContinue(record - range.first))
                                          return false;
                                      take(record);
                                  }
                                  return true;
                              });
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
    const bool isWhole = forEachMarked(session, [&](qint64 record) {
        text += begin;
        for (const ExportColumn &column : columns)
            text += sqlValue(dialect, valueOf(session, *recordset, record, column.field)) + ", "_L1;
        text.chop(2);
        text += ");\n"_L1;
    });
    if (isWhole && !text.isEmpty())
        putText(session, text);
}

// Each value once, and no Null, which IN never finds.
void copyAsInList(Session &session)
{
    const std::shared_ptr<ADODB::Recordset> recordset = session.result().recordset();
    const int field = session.window().currentCol() - 1;
    if (field < 0)
        return;
    const Dialect dialect = dialectFor(session);
    QStringList values;
    QSet<QString> seen;
    const bool isWhole = forEachMarked(session, [&](qint64 record) {
        const QVariant value = valueOf(session, *recordset, record, field);
        const QString literal = sqlValue(dialect, value);
        if (!value.isValid() || seen.contains(literal))
            return;
        seen.insert(literal);
        values.append(literal);
    });
    if (isWhole && !values.isEmpty())
        putText(session, u'(' + values.join(", "_L1) + u')');
}

const Command::Registration insertStatements({
    .key = u"CopyAsInsert"_s,
    .shortcut = u"Ctrl+Alt+C"_s,
    .menu = {19, Command::tr("INSERT 语句(&I)"), false, MenuGroup::CopyAs},
    .isInViewer = true,
    .viewerMenu = {11, Command::tr("INSERT 语句(&I)"), false, MenuGroup::CopyAs},
    .needs = Needs::Records,
    .record = Record::Stays,
    .run = copyAsInsert,
});

const Command::Registration inList({
    .key = u"CopyAsInList"_s,
    .shortcut = u"Ctrl+Alt+L"_s,
    .menu = {20, Command::tr("IN 列表(&L)"), false, MenuGroup::CopyAs},
    .isInViewer = true,
    .viewerMenu = {12, Command::tr("IN 列表(&L)"), false, MenuGroup::CopyAs},
    .needs = Needs::Records,
    .record = Record::Stays,
    .run = copyAsInList,
});

} // namespace

} // namespace KOVAVSFDataGridLib
