#include "ado/Recordset.h"
#include "session/Session.h"
#include "session/SessionWindow.h"
#include "session/commands/Command.h"
#include "session/commands/output/MarkedRecords.h"
#include "session/records/SqlValue.h"

#include <QtCore/QSet>

// Copies the values of the current column in the marked records to the clipboard, as a list for IN.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

// Each value once, without Null, which IN never matches.
void copyAsInList(Session &session)
{
    const std::shared_ptr<ADODB::Recordset> recordset = session.result().recordset();
    const int field = session.window().currentCol() - 1;
    if (field < 0)
        return;
    const Dialect dialect = dialectFor(session);
    QStringList values;
    QSet<QString> seen;
    const bool isWhole = forEachMarkedRecord(session, [&](qint64 record) {
        const QVariant value = markedValue(session, *recordset, record, field);
        const QString literal = sqlValue(dialect, value);
        if (!value.isValid() || seen.contains(literal))
            return;
        seen.insert(literal);
        values.append(literal);
    });
    if (isWhole && !values.isEmpty())
        putTextOnClipboard(session, u'(' + values.join(", "_L1) + u')');
}

const Command::Registration copyAsInListCommand({
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
