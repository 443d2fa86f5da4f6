#include "control/input/record/RequiredFields.h"

#include "ado/Recordset.h"
#include "ado/connection/Waiting.h"
#include "control/input/record/FieldRules.h"
#include "session/Session.h"
#include "session/editing/EditedRecord.h"
#include "session/records/FilledFields.h"

#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

namespace KOVAVSFDataGridLib {

namespace {

constexpr int afterDialog = 250; // milliseconds

// Whether the user can't use it, because a dialog of another window is open.
bool isBehindDialog(const QWidget &widget)
{
    const QWidget *const dialog = QApplication::activeModalWidget();
    return dialog && dialog != widget.window();
}

} // namespace

void RequiredFields::learn()
{
    const auto recordset = m_session.result().recordset();
    m_askedOf = recordset;
    if (!recordset || m_learnedOf.lock() != recordset)
        QTimer::singleShot(0, this, &RequiredFields::askDatabase);
}

bool RequiredFields::has(int field) const
{
    const auto recordset = m_session.result().recordset();
    return recordset && m_learnedOf.lock() == recordset && !m_session.record().isReadOnly() &&
           isRequired(recordset->Fields().Item(field)) && !m_filled.contains(field);
}

void RequiredFields::askDatabase()
{
    const auto recordset = m_session.result().recordset();
    // Not while something else waits for the database; the next record asks again.
    if (!m_session.result().isOpen() || m_askedOf.lock() != recordset || m_learnedOf.lock() == recordset ||
        m_session.record().isReadOnly() || ADODB::Waiting::isWatched())
        return;
    // The line of a wait would cover the buttons of a question, and keep clicks from them.
    if (isBehindDialog(m_place)) {
        QTimer::singleShot(afterDialog, this, &RequiredFields::askDatabase);
        return;
    }
    const QPointer<RequiredFields> alive(this);
    std::set<int> filled;
    bool isAnyRequired = false;
    for (int i = 0; i < recordset->Fields().Count(); ++i)
        isAnyRequired |= isRequired(recordset->Fields().Item(i));
    if (isAnyRequired)
        filled = filledFields(m_session);
    if (!alive || m_session.result().recordset() != recordset || m_askedOf.lock() != recordset)
        return;
    m_filled = std::move(filled);
    m_learnedOf = recordset;
    Q_EMIT learned();
}

} // namespace KOVAVSFDataGridLib
