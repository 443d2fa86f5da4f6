#pragma once

#include "../Stream.h"

#include <QtCore/QObject>
#include <QtCore/QVariant>

namespace ADODB {

// A stream with ADO's member names; see RecordsetObject.
class KOVA_EXPORT StreamObject : public QObject
{
    Q_OBJECT
    // Like the members of Stream with these names.
    Q_PROPERTY(qint32 Type READ type WRITE setType)
    Q_PROPERTY(qint32 State READ state)
    Q_PROPERTY(qint32 Size READ size)
    Q_PROPERTY(qint32 Position READ position WRITE setPosition)

public:
    // A closed stream.
    explicit StreamObject(QObject *parent = nullptr);

    // Like the members of Stream with these names.
    Q_INVOKABLE void Open();
    Q_INVOKABLE void Close();
    Q_INVOKABLE void Write(const QByteArray &bytes);
    Q_INVOKABLE void Write(const QVariant &bytes);
    Q_INVOKABLE QVariant Read(qint32 count = -1);
    Q_INVOKABLE void WriteText(const QString &text);
    Q_INVOKABLE QString ReadText();
    Q_INVOKABLE void SaveToFile(const QString &fileName, qint32 options = 1);

    // Accessors of the properties.
    qint32 type();
    void setType(qint32 type);
    qint32 state();
    qint32 size();
    qint32 position();
    void setPosition(qint32 position);

Q_SIGNALS:
    // A call by name failed. The arguments are those of ADODB::Error.
    void HostError(qint32 Number, const QString &Description);

private:
    Stream m_stream;
};

} // namespace ADODB
