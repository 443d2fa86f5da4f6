#pragma once

#include <QtCore/QXmlStreamWriter>

#include <vector>

namespace ADODB {

class Recordset;

// Writes records in the XML that ADO's Save writes: a schema of the fields, then one element for each record
// with the values as attributes. Null has no attribute.
class RecordsetXml
{
public:
    // Writes the schema. `device` is open.
    RecordsetXml(QIODevice &device, const Recordset &recordset);

    void write(qint64 record);
    // False if the device failed.
    bool end();

private:
    void writeSchema();
    void writeField(int column);

    QXmlStreamWriter m_xml;
    const Recordset &m_recordset;
    std::vector<QString> m_names; // of the attributes
};

} // namespace ADODB
