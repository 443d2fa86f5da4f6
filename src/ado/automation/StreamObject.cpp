#include "ado/automation/StreamObject.h"

#include "ado/automation/Guarded.h"

namespace ADODB {

StreamObject::StreamObject(QObject *parent) : QObject(parent) {}

void StreamObject::Open()
{
    guarded(this, [&] { m_stream.Open(); });
}

void StreamObject::Close()
{
    guarded(this, [&] { m_stream.Close(); });
}

void StreamObject::Write(const QByteArray &bytes)
{
    guarded(this, [&] { m_stream.Write(bytes); });
}

void StreamObject::Write(const QVariant &bytes)
{
    Write(bytes.toByteArray());
}

QVariant StreamObject::Read(qint32 count)
{
    return guarded(this, [&] { return QVariant(m_stream.Read(count)); });
}

void StreamObject::WriteText(const QString &text)
{
    guarded(this, [&] { m_stream.WriteText(text); });
}

QString StreamObject::ReadText()
{
    return guarded(this, [&] { return m_stream.ReadText(); });
}

void StreamObject::SaveToFile(const QString &fileName, qint32 options)
{
    guarded(this, [&] { m_stream.SaveToFile(fileName, static_cast<SaveOptionsEnum>(options)); });
}

qint32 StreamObject::type()
{
    return m_stream.Type();
}

void StreamObject::setType(qint32 type)
{
    guarded(this, [&] { m_stream.PutType(static_cast<StreamTypeEnum>(type)); });
}

qint32 StreamObject::state()
{
    return m_stream.State();
}

qint32 StreamObject::size()
{
    return guarded(this, [&] { return narrowed(m_stream.Size()); });
}

qint32 StreamObject::position()
{
    return guarded(this, [&] { return narrowed(m_stream.Position()); });
}

void StreamObject::setPosition(qint32 position)
{
    guarded(this, [&] { m_stream.PutPosition(position); });
}

} // namespace ADODB
