#include "ado/Error.h"
#include "ado/Notifications.h"
#include "ado/Recordset.h"
#include "session/Questions.h"
#include "session/ResultWatch.h"
#include "session/Session.h"
#include "session/SessionMessages.h"
#include "session/SessionWindow.h"
#include "session/commands/Command.h"
#include "session/editing/EditedRecord.h"

#include <vector>

// Begins a new record with the values of the current one and shows it as a list.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

struct CopiedValue
{
    int field;
    QVariant value;
};

// The current record's values that may occur again in another record.
std::vector<CopiedValue> valuesToCopy(const ADODB::Recordset &recordset)
{
    constexpr qint32 ownAttributes = ADODB::adFldKeyColumn | ADODB::adFldRowID | ADODB::adFldRowVersion;
    std::vector<CopiedValue> values;
    for (int i = 0; i < recordset.Fields().Count(); ++i) {
        const ADODB::Field &field = recordset.Fields().Item(i);
        const bool isWritable =
            (field.Attributes() & (ADODB::adFldUpdatable | ADODB::adFldUnknownUpdatable)) != 0;
        if (isWritable && (field.Attributes() & ownAttributes) == 0 && field.Value().isValid())
            values.push_back({i, field.Value()});
    }
    return values;
}

void beginRecord(ADODB::Recordset &recordset, const std::vector<CopiedValue> &values)
{
    recordset.AddNew();
    for (const CopiedValue &copied : values)
        recordset.Fields().Item(copied.field).PutValue(copied.value);
}

void copyRecord(Session &session)
{
    if (!session.record().save())
        return;
    const ResultWatch watch(session);
    ADODB::Recordset &recordset = *watch.recordset();
    try {
        const ADODB::Notifications::Hold hold(session.notifications());
        const std::vector<CopiedValue> values = valuesToCopy(recordset);
        beginRecord(recordset, values);
        session.window().showSingleRecord();
    } catch (const ADODB::Error &error) {
        if (watch.isUntouched())
            session.questions().show(SessionMessages::CopyRefused() + error.Description());
    }
}

const Command::Registration copyRecordCommand({
    .key = u"CopyRecord"_s,
    .shortcut = u"Ctrl+Shift+D"_s,
    .menu = {36, Command::tr("复制为新记录(&Q)")},
    .needs = Needs::Records,
    .record = Record::Stays,
    .run = copyRecord,
    .whyNot = [](Session &session) { return session.record().whyNotAdded(); },
});

} // namespace

} // namespace KOVAVSFDataGridLib
