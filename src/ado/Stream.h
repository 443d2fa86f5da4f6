#pragma once

#include "../KovaExport.h"
#include "Enums.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace ADODB {

// Bytes in memory with a position, for writing a binary field to a file. Members throw Error; they throw 3704
// if the stream must be open and is closed.
class KOVA_EXPORT Stream
{
public:
    // adTypeBinary or adTypeText (the default, as in ADO). Can be written while closed, or open at position
    // 0.
    StreamTypeEnum Type() const { return m_type; }
    void PutType(StreamTypeEnum type);
    // Whether it is open.
    ObjectStateEnum State() const { return m_open ? adStateOpen : adStateClosed; }

    // Opens it empty. Throws 3705 when open.
    void Open();
    // Discards its bytes.
    void Close();

    // In bytes.
    qint64 Size() const;
    // 0…Size, in bytes; writing a larger position lengthens the stream with zero bytes.
    qint64 Position() const;
    void PutPosition(qint64 position);

    // Binary streams only (3219 otherwise). Writing replaces bytes from Position on. Reading returns at most
    // `count` bytes, or all remaining bytes. Both advance Position.
    void Write(const QByteArray &bytes);
    QByteArray Read(qint64 count = adReadAll);
    // Text streams only (3219 otherwise): the same in UTF-8.
    void WriteText(const QString &text);
    QString ReadText();

    // Writes the whole stream to a file, completely or not at all. If the file exists, adSaveCreateNotExist
    // throws 3004 and adSaveCreateOverWrite replaces it. Position is 0 afterwards.
    void SaveToFile(const QString &fileName, SaveOptionsEnum options = adSaveCreateNotExist);

private:
    void needOpen() const;
    void needType(StreamTypeEnum type) const;
    void put(const QByteArray &bytes);
    QByteArray take(qint64 count);

    QByteArray m_bytes;
    qint64 m_position = 0;
    StreamTypeEnum m_type = adTypeText;
    bool m_open = false;
};

} // namespace ADODB
