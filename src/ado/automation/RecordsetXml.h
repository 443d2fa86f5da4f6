#pragma once

#include <QtCore/QXmlStreamWriter>

#include <vector>

namespace ADODB {

class Recordset;

// Writes records in the XML format of ADO's Save: a schema of the fields, then one element per record with
// the values as attributes. A Null has no attribute.
class RecordsetXml
{
public:
    // Writes the schema. `device` must be open.
    RecordsetXml(QIODevice &device, const Recordset &recordset);

    void write(qint64 record);
    // Returns false if writing to the device failed.
    bool end();

private:
    void writeSchema();
    void writeField(int column);

    QXmlStreamWriter m_xml;
    const Recordset &m_recordset;
    std::vector<QString> m_names; // of the attributes
};

} // namespace ADODB
