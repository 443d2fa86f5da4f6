#pragma once

#include "../KovaExport.h"
#include "Notifications.h"
#include "RecordsetObserver.h"

#include <memory>

namespace ADODB {

class Recordset;

// The data control: it stands between a recordset and those who want to hear of its moves and changes.
// A QSignalBlocker on it silences a block of moves.
class KOVA_EXPORT Adodc : public QObject, private RecordsetObserver
{
    Q_OBJECT
    // The recordset by ADO's member names, a RecordsetObject; null until one is put.
    Q_PROPERTY(QObject *Recordset READ recordsetObject NOTIFY RecordsetReplaced)

public:
    // Without a recordset.
    explicit Adodc(QObject *parent = nullptr);
    ~Adodc() override;

    // Null until one is put. Shared with whoever else holds it.
    const std::shared_ptr<ADODB::Recordset> &Recordset() const { return m_recordset; }
    // Null lets go of the one there is. Putting one that is open tells RecordsetChangeComplete(adRsnRequery)
    // and MoveComplete(adRsnMove).
    void PutRecordset(std::shared_ptr<ADODB::Recordset> recordset);
    // The same one by ADO's member names; see automation().
    QObject *recordsetObject() const;
    // What its signals wait for while somebody changes several things at once.
    Notifications &notifications() { return m_notifications; }

Q_SIGNALS:
    // See RecordsetObserver::moveComplete.
    void MoveComplete(ADODB::EventReasonEnum adReason);
    // See RecordsetObserver::recordChangeComplete.
    void RecordChangeComplete(ADODB::EventReasonEnum adReason);
    // See RecordsetObserver::recordsetChangeComplete.
    void RecordsetChangeComplete(ADODB::EventReasonEnum adReason);
    // Another recordset, or none, was put.
    void RecordsetReplaced();

private:
    void moveComplete(EventReasonEnum reason) override;
    void recordChangeComplete(EventReasonEnum reason) override;
    void recordsetChangeComplete(EventReasonEnum reason) override;

    void send(void (Adodc::*signal)(EventReasonEnum), EventReasonEnum reason);

    std::shared_ptr<ADODB::Recordset> m_recordset;
    Notifications m_notifications;
};

} // namespace ADODB
