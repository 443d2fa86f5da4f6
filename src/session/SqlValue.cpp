#include "session/SqlValue.h"

#include "ado/ValueText.h"
#include "sql/Literals.h"

#include <QtCore/QDateTime>

#include <cmath>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

QString bytesLiteral(Engine engine, const QByteArray &bytes)
{
    const QString digits = QString::fromLatin1(bytes.toHex().toUpper());
    switch (engine) {
    case Engine::PostgreSQL:
        return u"'\\x"_s + digits + u"'::bytea"_s;
    case Engine::SqlServer:
        return u"0x"_s + digits;
    case Engine::Oracle:
        return u"HEXTORAW('"_s + digits + u"')"_s;
    default:
        return u"X'"_s + digits + u'\'';
    }
}

// Oracle reads a plain text by the session's own date format, the others know this one.
QString momentLiteral(Engine engine, QLatin1StringView word, const QVariant &value)
{
    const QString quoted = u'\'' + ADODB::ValueText(value) + u'\'';
    return engine == Engine::Oracle ? word + u' ' + quoted : quoted;
}

// In PostgreSQL it depends on a setting of the session what a backslash means, except in such a text.
QString plainText(Dialect dialect, Engine engine, const QString &text)
{
    if (engine != Engine::PostgreSQL || !text.contains(u'\\'))
        return textLiteral(dialect, text);
    dialect.escapesByBackslash = true;
    return u'E' + textLiteral(dialect, text);
}

} // namespace

QString sqlValue(const Dialect &dialect, const QVariant &value)
{
    const Engine engine = dialect.likelyEngine();
    switch (value.typeId()) {
    case QMetaType::UnknownType:
        return u"NULL"_s;
    case QMetaType::Bool:
        if (engine == Engine::PostgreSQL)
            return value.toBool() ? u"TRUE"_s : u"FALSE"_s;
        return value.toBool() ? u"1"_s : u"0"_s;
    case QMetaType::Double:
        if (!std::isfinite(value.toDouble()))
            return u'\'' + ADODB::ValueText(value) + u'\'';
        return QString::number(value.toDouble(), 'g', QLocale::FloatingPointShortest);
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::Float:
        return ADODB::ValueText(value);
    case QMetaType::QByteArray:
        return bytesLiteral(engine, value.toByteArray());
    case QMetaType::QDate:
        return momentLiteral(engine, "DATE"_L1, value);
    case QMetaType::QDateTime:
        return momentLiteral(engine, "TIMESTAMP"_L1, value);
    default:
        return plainText(dialect, engine, ADODB::ValueText(value));
    }
}

} // namespace KOVAVSFDataGridLib
