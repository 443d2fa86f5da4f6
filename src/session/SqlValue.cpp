#include "session/SqlValue.h"

#include "ado/ValueText.h"
#include "query/FieldNames.h"
#include "sql/ReservedWords.h"

#include <QtCore/QDateTime>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

bool isOracle(const SqlWriting &writing)
{
    return writing.engine == Engine::Other && writing.database == dbOracle;
}

bool isSqlServer(const SqlWriting &writing)
{
    return writing.engine == Engine::Other && writing.database == dbSQLServer;
}

QString enclosed(QChar opening, QString name, QChar closing)
{
    return opening + name.replace(closing, QString(2, closing)) + closing;
}

QString bytesLiteral(const SqlWriting &writing, const QByteArray &bytes)
{
    const QString digits = QString::fromLatin1(bytes.toHex().toUpper());
    if (writing.engine == Engine::PostgreSQL)
        return u"'\\x"_s + digits + u"'::bytea"_s;
    if (isSqlServer(writing))
        return u"0x"_s + digits;
    if (isOracle(writing))
        return u"HEXTORAW('"_s + digits + u"')"_s;
    return u"X'"_s + digits + u'\'';
}

// Oracle reads a plain text by the session's own date format, the others know this one.
QString momentLiteral(const SqlWriting &writing, QLatin1StringView word, const QString &text)
{
    const QString quoted = u'\'' + text + u'\'';
    return isOracle(writing) ? word + u' ' + quoted : quoted;
}

} // namespace

QString SqlName(const SqlWriting &writing, const QString &name)
{
    if (!IsReservedWord(name) && QuotedFieldName(writing.database, name) == name)
        return name;
    if (writing.engine == Engine::MySQL)
        return enclosed(u'`', name, u'`');
    if (isSqlServer(writing))
        return u'[' + QString(name).replace(u']', "]]"_L1) + u']';
    return enclosed(u'"', name, u'"');
}

QString SqlValue(const SqlWriting &writing, const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::UnknownType:
        return u"NULL"_s;
    case QMetaType::Bool:
        if (writing.engine == Engine::PostgreSQL)
            return value.toBool() ? u"TRUE"_s : u"FALSE"_s;
        return value.toBool() ? u"1"_s : u"0"_s;
    case QMetaType::Double:
        return QString::number(value.toDouble(), 'g', QLocale::FloatingPointShortest);
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::Float:
        return ADODB::ValueText(value);
    case QMetaType::QByteArray:
        return bytesLiteral(writing, value.toByteArray());
    case QMetaType::QDate:
        return momentLiteral(writing, "DATE"_L1, ADODB::ValueText(value));
    case QMetaType::QDateTime:
        return momentLiteral(writing, "TIMESTAMP"_L1, ADODB::ValueText(value));
    default: {
        const QString literal = TextLiteral(writing.engine, ADODB::ValueText(value));
        return isSqlServer(writing) ? u'N' + literal : literal;
    }
    }
}

} // namespace KOVAVSFDataGridLib
