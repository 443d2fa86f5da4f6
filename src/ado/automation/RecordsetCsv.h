#pragma once

#include <QtCore/QByteArray>

class QIODevice;
class QString;

namespace ADODB {

class Recordset;

// Writes records as CSV (RFC 4180) in UTF-8 with a byte order mark: the names of the fields, then one line
// per record. Null is empty, an empty text is quoted, and binary values are hexadecimal. Texts are not
// changed.
class RecordsetCsv
{
public:
    // Writes the names. `device` must be open.
    RecordsetCsv(QIODevice &device, const Recordset &recordset);

    void write(qint64 record);
    // Returns false if writing to the device failed.
    bool end();

private:
    void add(int column, const QByteArray &text, bool isQuoted);
    void endLine();

    QIODevice &m_device;
    const Recordset &m_recordset;
    const int m_columns;
    QByteArray m_pending;
    bool m_isWritten = true;
};

} // namespace ADODB
