#include "ado/Adodc.h"

#include "ado/Recordset.h"
#include "ado/automation/RecordsetObject.h"

#include <QtCore/QPointer>

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
    // Whoever is told may put another one, close this one or delete the data control.
    const QPointer<Adodc> alive(this);
    const auto isStillOpen = [&] {
        return alive && m_recordset && m_recordset == recordset && recordset->State() == adStateOpen;
    };
    Q_EMIT RecordsetReplaced();
    if (isStillOpen())
        Q_EMIT RecordsetChangeComplete(adRsnRequery);
    if (isStillOpen())
        Q_EMIT MoveComplete(adRsnMove);
}

QObject *Adodc::recordsetObject() const
{
    return m_recordset ? automation(m_recordset) : nullptr;
}

void Adodc::moveComplete(EventReasonEnum reason)
{
    Q_EMIT MoveComplete(reason);
}

void Adodc::recordChangeComplete(EventReasonEnum reason)
{
    Q_EMIT RecordChangeComplete(reason);
}

void Adodc::recordsetChangeComplete(EventReasonEnum reason)
{
    Q_EMIT RecordsetChangeComplete(reason);
}

} // namespace ADODB
