#pragma once

#include "../../KovaExport.h"

#include <QtCore/QObject>
#include <QtCore/QVariant>

#include <memory>

#ifdef Q_MOC_RUN
#undef EOF // a macro of <cstdio>; here it is the name of a property
#endif

namespace ADODB {

class FieldsObject;
class Recordset;

// A recordset with ADO's member names, for hosts that have a QObject and use names. It never throws. A call
// that fails emits HostError and returns the default value of its type. BOF and EOF then return true, so that
// every loop over the records ends. Errors of its fields are also emitted here.
class KOVA_EXPORT RecordsetObject : public QObject
{
    Q_OBJECT
    // As the members of Recordset with these names; BOF and EOF are isBOF and isEOF there.
    Q_PROPERTY(bool BOF READ isBOF)
    Q_PROPERTY(bool EOF READ isEOF)
    Q_PROPERTY(qint32 RecordCount READ recordCount)
    Q_PROPERTY(qint32 AbsolutePosition READ absolutePosition WRITE setAbsolutePosition)
    Q_PROPERTY(qint32 AbsolutePage READ absolutePage WRITE setAbsolutePage)
    Q_PROPERTY(qint32 PageSize READ pageSize WRITE setPageSize)
    Q_PROPERTY(qint32 PageCount READ pageCount)
    Q_PROPERTY(qint32 State READ state)
    Q_PROPERTY(qint32 EditMode READ editMode)
    Q_PROPERTY(qint32 CursorLocation READ cursorLocation WRITE setCursorLocation)
    Q_PROPERTY(qint32 CursorType READ cursorType WRITE setCursorType)
    Q_PROPERTY(qint32 LockType READ lockType WRITE setLockType)
    Q_PROPERTY(QString Source READ source)
    Q_PROPERTY(QObject *Fields READ fields)

public:
    // For automation() only.
    explicit RecordsetObject(Recordset &recordset);
    ~RecordsetObject() override;

    // One field, by name or by 0-based index.
    Q_INVOKABLE QObject *Fields(const QString &name);
    Q_INVOKABLE QObject *Fields(qint32 index);
    Q_INVOKABLE QObject *Fields(const QVariant &nameOrIndex);

    // Like Recordset::Open; `connection` is a ConnectionObject.
    Q_INVOKABLE void Open(const QString &source, QObject *connection, qint32 cursorType = -1,
                          qint32 lockType = -1, qint32 options = -1);
    // As the members of Recordset with these names.
    Q_INVOKABLE void Close();
    Q_INVOKABLE void Move(qint32 records, qint32 start = 0);
    Q_INVOKABLE void MoveFirst();
    Q_INVOKABLE void MoveNext();
    Q_INVOKABLE void MovePrevious();
    Q_INVOKABLE void MoveLast();
    Q_INVOKABLE void AddNew();
    Q_INVOKABLE void Update();
    Q_INVOKABLE void CancelUpdate();
    Q_INVOKABLE void Delete(qint32 affectRecords = 1);
    Q_INVOKABLE void Resync(qint32 affectRecords = 1, qint32 resyncValues = 2);

    // Accessors of the properties.
    bool isBOF();
    bool isEOF();
    qint32 recordCount();
    qint32 absolutePosition();
    void setAbsolutePosition(qint32 position);
    qint32 absolutePage();
    void setAbsolutePage(qint32 page);
    qint32 pageSize();
    void setPageSize(qint32 records);
    qint32 pageCount();
    qint32 state();
    qint32 editMode();
    qint32 cursorLocation();
    void setCursorLocation(qint32 location);
    qint32 cursorType();
    void setCursorType(qint32 type);
    qint32 lockType();
    void setLockType(qint32 type);
    QString source();
    QObject *fields();

Q_SIGNALS:
    // A call by name on this object or one of its fields failed. The arguments are those of ADODB::Error.
    void HostError(qint32 Number, const QString &Description);

private:
    Recordset &m_recordset;
    FieldsObject *m_fields; // a child
};

// The object of a recordset. It is always the same one, and the recordset owns it.
KOVA_EXPORT RecordsetObject *automation(const std::shared_ptr<Recordset> &recordset);

} // namespace ADODB
