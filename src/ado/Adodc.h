#pragma once

#include "../KovaExport.h"
#include "Notifications.h"
#include "RecordsetObserver.h"

#include <memory>

namespace ADODB {

class Recordset;

// The data control: emits signals when its recordset moves or changes. Use a QSignalBlocker on it to move
// without signals.
class KOVA_EXPORT Adodc : public QObject, private RecordsetObserver
{
    Q_OBJECT
    // The recordset with ADO's member names, a RecordsetObject; null until one is set.
    Q_PROPERTY(QObject *Recordset READ recordsetObject NOTIFY RecordsetReplaced)

public:
    // Without a recordset.
    explicit Adodc(QObject *parent = nullptr);
    ~Adodc() override;

    // Null until one is set. Shared with its other owners.
    const std::shared_ptr<ADODB::Recordset> &Recordset() const { return m_recordset; }
    // Null releases the present one. Setting an open one emits RecordsetChangeComplete(adRsnRequery) and
    // MoveComplete(adRsnMove).
    void PutRecordset(std::shared_ptr<ADODB::Recordset> recordset);
    // The same recordset with ADO's member names; see automation().
    QObject *recordsetObject() const;
    // Delays the signals while several things change together.
    Notifications &notifications() { return m_notifications; }

Q_SIGNALS:
    // See RecordsetObserver::moveComplete.
    void MoveComplete(ADODB::EventReasonEnum adReason);
    // See RecordsetObserver::recordChangeComplete.
    void RecordChangeComplete(ADODB::EventReasonEnum adReason);
    // See RecordsetObserver::recordsetChangeComplete.
    void RecordsetChangeComplete(ADODB::EventReasonEnum adReason);
    // Another recordset, or none, was set.
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
