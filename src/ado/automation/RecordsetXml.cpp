#include "ado/automation/RecordsetXml.h"

#include "ado/Recordset.h"
#include "ado/ValueText.h"

#include <QtCore/QDateTime>

#include <algorithm>
#include <utility>

namespace ADODB {

using namespace Qt::Literals::StringLiterals;

namespace {

// The type of a field in the schema: the format of its values, and the database's type if the format does not
// determine it.
std::pair<QString, QString> typeOf(DataTypeEnum type)
{
    switch (type) {
    case adTinyInt:
        return {u"i1"_s, {}};
    case adSmallInt:
        return {u"i2"_s, {}};
    case adInteger:
        return {u"int"_s, {}};
    case adBigInt:
        return {u"i8"_s, {}};
    case adUnsignedTinyInt:
        return {u"ui1"_s, {}};
    case adUnsignedSmallInt:
        return {u"ui2"_s, {}};
    case adUnsignedInt:
        return {u"ui4"_s, {}};
    case adUnsignedBigInt:
        return {u"ui8"_s, {}};
    case adSingle:
        return {u"r4"_s, {}};
    case adDouble:
        return {u"float"_s, {}};
    case adCurrency:
        return {u"number"_s, u"currency"_s};
    case adDecimal:
    case adNumeric:
    case adVarNumeric:
        return {u"number"_s, u"numeric"_s};
    case adBoolean:
        return {u"boolean"_s, {}};
    case adDBDate:
        return {u"date"_s, {}};
    case adDBTime:
        return {u"time"_s, {}};
    case adDate:
        return {u"dateTime"_s, u"variantdate"_s};
    case adDBTimeStamp:
        return {u"dateTime"_s, u"timestamp"_s};
    case adGUID:
        return {u"uuid"_s, {}};
    case adBinary:
    case adVarBinary:
    case adLongVarBinary:
        return {u"bin.hex"_s, {}};
    default:
        return {u"string"_s, {}};
    }
}

// Whether it can be an attribute name without escaping.
bool isPlainName(const QString &name)
{
    const auto isPart = [](QChar c) { return c.isLetterOrNumber() || c == u'_'; };
    return !name.isEmpty() && !name[0].isDigit() && std::all_of(name.begin(), name.end(), isPart);
}

QString xmlText(const QVariant &value)
{
    if (value.typeId() == QMetaType::QByteArray)
        return QString::fromLatin1(value.toByteArray().toHex());
    if (value.typeId() == QMetaType::QDateTime)
        return ValueText(value).replace(u' ', u'T');
    QString text = ValueText(value);
    // XML can't represent these characters.
    for (QChar &c : text) {
        if ((c < u' ' && c != u'\t' && c != u'\n' && c != u'\r') || c >= QChar(0xFFFE))
            c = QChar(QChar::ReplacementCharacter);
    }
    return text;
}

} // namespace

RecordsetXml::RecordsetXml(QIODevice &device, const Recordset &recordset)
    : m_xml(&device), m_recordset(recordset)
{
    m_xml.setAutoFormatting(true);
    m_xml.setAutoFormattingIndent(1);
    m_xml.writeStartElement(u"xml"_s);
    m_xml.writeAttribute(u"xmlns:s"_s, u"uuid:BDC6E3F0-6DA3-11d1-A2A3-00AA00C14882"_s);
    m_xml.writeAttribute(u"xmlns:dt"_s, u"uuid:C2F41010-65B3-11d1-A29F-00AA00C14882"_s);
    m_xml.writeAttribute(u"xmlns:rs"_s, u"urn:schemas-microsoft-com:rowset"_s);
    m_xml.writeAttribute(u"xmlns:z"_s, u"#RowsetSchema"_s);
    writeSchema();
    m_xml.writeStartElement(u"rs:data"_s);
}

void RecordsetXml::writeSchema()
{
    m_xml.writeStartElement(u"s:Schema"_s);
    m_xml.writeAttribute(u"id"_s, u"RowsetSchema"_s);
    m_xml.writeStartElement(u"s:ElementType"_s);
    m_xml.writeAttribute(u"name"_s, u"row"_s);
    m_xml.writeAttribute(u"content"_s, u"eltOnly"_s);
    for (int column = 0; column < m_recordset.Fields().Count(); ++column)
        writeField(column);
    m_xml.writeEmptyElement(u"s:extends"_s);
    m_xml.writeAttribute(u"type"_s, u"rs:rowbase"_s);
    m_xml.writeEndElement();
    m_xml.writeEndElement();
}

void RecordsetXml::writeField(int column)
{
    const Field &field = m_recordset.Fields().Item(column);
    const QString name = field.Name();
    const bool isUnique = std::find(m_names.begin(), m_names.end(), name) == m_names.end();
    const bool isPlain = isPlainName(name) && isUnique;
    m_names.push_back(isPlain ? name : u"c%1"_s.arg(column));
    m_xml.writeStartElement(u"s:AttributeType"_s);
    m_xml.writeAttribute(u"name"_s, m_names.back());
    if (!isPlain)
        m_xml.writeAttribute(u"rs:name"_s, name);
    m_xml.writeAttribute(u"rs:number"_s, QString::number(column + 1));
    m_xml.writeAttribute(u"rs:nullable"_s, u"true"_s);
    const auto [format, databaseType] = typeOf(field.Type());
    m_xml.writeEmptyElement(u"s:datatype"_s);
    m_xml.writeAttribute(u"dt:type"_s, format);
    if (!databaseType.isEmpty())
        m_xml.writeAttribute(u"rs:dbtype"_s, databaseType);
    if (field.DefinedSize() > 0)
        m_xml.writeAttribute(u"dt:maxLength"_s, QString::number(field.DefinedSize()));
    if (field.Precision() > 0) {
        m_xml.writeAttribute(u"rs:scale"_s, QString::number(field.NumericScale()));
        m_xml.writeAttribute(u"rs:precision"_s, QString::number(field.Precision()));
    }
    m_xml.writeEndElement();
}

void RecordsetXml::write(qint64 record)
{
    m_xml.writeEmptyElement(u"z:row"_s);
    for (std::size_t i = 0; i < m_names.size(); ++i) {
        const QVariant value = m_recordset.CellValue(record, static_cast<int>(i));
        if (value.isValid())
            m_xml.writeAttribute(m_names[i], xmlText(value));
    }
}

bool RecordsetXml::end()
{
    m_xml.writeEndDocument();
    return !m_xml.hasError();
}

} // namespace ADODB
