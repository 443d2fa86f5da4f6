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
    m_recordset = std::move(recordset);
    if (m_recordset)
        m_recordset->AddObserver(this);
    Q_EMIT RecordsetReplaced();
    if (m_recordset && m_recordset->State() == adStateOpen) {
        Q_EMIT RecordsetChangeComplete(adRsnRequery);
        Q_EMIT MoveComplete(adRsnMove);
    }
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
