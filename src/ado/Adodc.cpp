#include "ado/Adodc.h"

#include "ado/Recordset.h"
#include "ado/automation/RecordsetObject.h"

namespace ADODB {

Adodc::Adodc(QObject *parent) : QObject(parent) {}

Adodc::~Adodc()
{
    if (m_recordset)
        m_recordset->RemoveObserver(this);
}

void Adodc::PutRecordset(std::shared_ptr<ADODB::Recordset> recordset)
{
    if (m_recordset == recordset)
        return;
    if (m_recordset)
        m_recordset->RemoveObserver(this);
    m_recordset = recordset;
    if (m_recordset)
        m_recordset->AddObserver(this);
    const Notifications::Hold hold(m_notifications);
    m_notifications.send(this, [this] { Q_EMIT RecordsetReplaced(); });
    // The first listener may set another recordset or close this one.
    const auto sendWhileOpen = [&](void (Adodc::*signal)(EventReasonEnum), EventReasonEnum reason) {
        m_notifications.send(this, [this, recordset, signal, reason] {
            if (m_recordset == recordset && recordset->State() == adStateOpen)
                Q_EMIT(this->*signal)(reason);
        });
    };
    if (m_recordset) {
        sendWhileOpen(&Adodc::RecordsetChangeComplete, adRsnRequery);
        sendWhileOpen(&Adodc::MoveComplete, adRsnMove);
    }
}

QObject *Adodc::recordsetObject() const
{
    return m_recordset ? automation(m_recordset) : nullptr;
}

void Adodc::send(void (Adodc::*signal)(EventReasonEnum), EventReasonEnum reason)
{
    if (signalsBlocked())
        return;
    m_notifications.send(this, [this, signal, reason] { Q_EMIT(this->*signal)(reason); });
}

void Adodc::moveComplete(EventReasonEnum reason)
{
    send(&Adodc::MoveComplete, reason);
}

void Adodc::recordChangeComplete(EventReasonEnum reason)
{
    send(&Adodc::RecordChangeComplete, reason);
}

void Adodc::recordsetChangeComplete(EventReasonEnum reason)
{
    send(&Adodc::RecordsetChangeComplete, reason);
}

} // namespace ADODB
