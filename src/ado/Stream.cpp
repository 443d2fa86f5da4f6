#include "ado/Stream.h"

#include "ado/Error.h"
#include "ado/Texts.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QSaveFile>

namespace ADODB {

void Stream::needOpen() const
{
    if (!m_open)
        throw Error(adErrObjectClosed, Texts::streamClosed());
}

void Stream::needType(StreamTypeEnum type) const
{
    needOpen();
    if (m_type != type)
        throw Error(adErrIllegalOperation, Texts::streamWrongType());
}

void Stream::PutType(StreamTypeEnum type)
{
    if (type != adTypeBinary && type != adTypeText)
        throw Error(adErrInvalidArgument, Texts::badArgument().arg(qint32{type}));
    if (m_open && m_position != 0)
        throw Error(adErrIllegalOperation, Texts::streamMoved());
    m_type = type;
}

void Stream::Open()
{
    if (m_open)
        throw Error(adErrObjectOpen, Texts::streamOpen());
    m_open = true;
}

void Stream::Close()
{
    needOpen();
    m_bytes.clear();
    m_position = 0;
    m_open = false;
}

qint64 Stream::Size() const
{
    needOpen();
    return m_bytes.size();
}

qint64 Stream::Position() const
{
    needOpen();
    return m_position;
}

void Stream::PutPosition(qint64 position)
{
    needOpen();
    if (position < 0)
        throw Error(adErrInvalidArgument, Texts::badArgument().arg(position));
    if (position > m_bytes.size())
        m_bytes.append(position - m_bytes.size(), '\0');
    m_position = position;
}

void Stream::put(const QByteArray &bytes)
{
    m_bytes.replace(m_position, bytes.size(), bytes);
    m_position += bytes.size();
}

QByteArray Stream::take(qint64 count)
{
    QByteArray bytes = m_bytes.mid(m_position, count);
    m_position += bytes.size();
    return bytes;
}

void Stream::Write(const QByteArray &bytes)
{
    needType(adTypeBinary);
    put(bytes);
}

QByteArray Stream::Read(qint64 count)
{
    needType(adTypeBinary);
    if (count < 0 && count != adReadAll)
        throw Error(adErrInvalidArgument, Texts::badArgument().arg(count));
    return take(count);
}

void Stream::WriteText(const QString &text)
{
    needType(adTypeText);
    put(text.toUtf8());
}

QString Stream::ReadText()
{
    needType(adTypeText);
    return QString::fromUtf8(take(adReadAll));
}

void Stream::SaveToFile(const QString &fileName, SaveOptionsEnum options)
{
    needOpen();
    if (options != adSaveCreateNotExist && options != adSaveCreateOverWrite)
        throw Error(adErrInvalidArgument, Texts::badArgument().arg(qint32{options}));
    const QString shown = QDir::toNativeSeparators(fileName);
    if (options == adSaveCreateNotExist && QFileInfo::exists(fileName))
        throw Error(adErrWriteFile, Texts::fileExists().arg(shown));
    // QSaveFile replaces the old file only after the new one was written completely.
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly) || file.write(m_bytes) != m_bytes.size() || !file.commit())
        throw Error(adErrWriteFile, Texts::fileNotWritten().arg(shown, file.errorString()));
    m_position = 0;
}

} // namespace ADODB
