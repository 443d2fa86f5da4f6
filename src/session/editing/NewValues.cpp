#include "ado/Error.h"
#include "ado/Notifications.h"
#include "ado/Recordset.h"
#include "ado/ValueText.h"
#include "session/Questions.h"
#include "session/ResultWatch.h"
#include "session/Session.h"
#include "session/SessionMessages.h"
#include "session/SessionWindow.h"
#include "session/editing/EditedRecord.h"

#include <vector>

// Reads a record that somebody else has changed again, and keeps the user's own changes.

namespace KOVAVSFDataGridLib {

namespace {

// A value that is not yet saved, and the one that the user saw before.
struct Written
{
    int field;
    QVariant value;
    QVariant before;
};

std::vector<Written> writtenValues(ADODB::Recordset &recordset)
{
    std::vector<Written> written;
    for (int i = 0; i < recordset.Fields().Count(); ++i) {
        const ADODB::Field &field = recordset.Fields().Item(i);
        if (field.Value() != field.OriginalValue())
            written.push_back({i, field.Value(), field.OriginalValue()});
    }
    return written;
}

// The conflicting changes, one line per field.
QString readAgain(ADODB::Recordset &recordset)
{
    const std::vector<Written> written = writtenValues(recordset);
    recordset.Resync();
    QString conflicts;
    for (const Written &mine : written) {
        ADODB::Field &field = recordset.Fields().Item(mine.field);
        const QVariant now = field.OriginalValue();
        if (now == mine.value)
            continue;
        field.PutValue(mine.value);
        if (now != mine.before)
            conflicts += SessionMessages::ChangedField.arg(field.Name(), ADODB::ValueText(now),
                                                           ADODB::ValueText(mine.value));
    }
    return conflicts;
}

} // namespace

void EditedRecord::showNewValues()
{
    const ResultWatch watch(m_session);
    if (!commitEdit())
        return;
    QString message;
    {
        const ADODB::Notifications::Hold hold(m_session.notifications());
        try {
            message = readAgain(*watch.recordset());
            if (!watch.isUntouched())
                return;
            if (!message.isEmpty())
                message.prepend(SessionMessages::ChangedFields);
            m_session.window().refreshRecords();
            m_session.window().refreshSingleRecord();
        } catch (const ADODB::Error &error) {
            message = SessionMessages::NewValuesRefused + error.Description();
        }
    }
    if (!message.isEmpty() && watch.isUntouched())
        m_session.questions().show(message);
}

} // namespace KOVAVSFDataGridLib
