#include "ado/providers/sqlite/SqliteTypes.h"

#include <QtCore/QStringList>

#include <array>
#include <initializer_list>

using namespace Qt::Literals::StringLiterals;

namespace ADODB::SqliteTypes {

namespace {

struct Rule
{
    enum class Match { Whole, Start, Part };

    Match match;
    QStringView word;
    DataTypeEnum type;
};

// The first match applies. Above the line are names with an ADO type of their own; below it are SQLite's
// affinity rules, so that any other name gets the type in which its values are stored.
constexpr auto whole = Rule::Match::Whole;
constexpr auto start = Rule::Match::Start;
constexpr auto part = Rule::Match::Part;
constexpr std::array rules{
    Rule{start, u"BOOL", adBoolean},
    Rule{whole, u"BIT", adBoolean},
    Rule{whole, u"DATE", adDBDate},
    Rule{whole, u"TIME", adDBTime},
    Rule{start, u"TIMESTAMP", adDBTimeStamp},
    Rule{start, u"DATETIME", adDBTimeStamp},
    Rule{whole, u"SMALLINT", adSmallInt},
    Rule{whole, u"INT2", adSmallInt},
    Rule{whole, u"TINYINT", adUnsignedTinyInt},
    Rule{whole, u"BIGINT", adBigInt},
    Rule{whole, u"INT8", adBigInt},
    Rule{whole, u"UNSIGNED BIG INT", adBigInt},
    Rule{whole, u"CHAR", adWChar},
    Rule{whole, u"NCHAR", adWChar},
    Rule{whole, u"CHARACTER", adWChar},
    Rule{whole, u"NATIVE CHARACTER", adWChar},
    // ----
    Rule{part, u"INT", adInteger},
    Rule{part, u"CHAR", adVarWChar},
    Rule{part, u"CLOB", adVarWChar},
    Rule{part, u"TEXT", adVarWChar},
    Rule{part, u"BLOB", adLongVarBinary},
    Rule{part, u"REAL", adDouble},
    Rule{part, u"FLOA", adDouble},
    Rule{part, u"DOUB", adDouble},
};

DataTypeEnum typeOf(QStringView name)
{
    for (const Rule &rule : rules) {
        const bool matches = rule.match == whole   ? name == rule.word
                             : rule.match == start ? name.startsWith(rule.word)
                                                   : name.contains(rule.word);
        if (matches)
            return rule.type;
    }
    return adNumeric;
}

void setType(FieldInfo &field, DataTypeEnum type)
{
    struct Fixed
    {
        DataTypeEnum type;
        qint32 bytes;
        qint32 precision;
    };
    static constexpr Fixed sizes[] = {
        {adBoolean, 2, 0},  {adDBDate, 6, 10},         {adDBTime, 6, 8},  {adDBTimeStamp, 16, 23},
        {adSmallInt, 2, 5}, {adUnsignedTinyInt, 1, 3}, {adBigInt, 8, 19}, {adInteger, 4, 10},
        {adDouble, 8, 15},  {adNumeric, 19, 19},
    };
    field.type = type;
    field.definedSize = 0;
    field.precision = 0;
    field.attributes &= ~(adFldFixed | adFldLong);
    for (const Fixed &fixed : sizes) {
        if (fixed.type == type) {
            field.definedSize = fixed.bytes;
            field.precision = fixed.precision;
            field.attributes |= adFldFixed;
        }
    }
    if (type == adLongVarBinary)
        field.attributes |= adFldLong;
}

} // namespace

void applyDeclaration(FieldInfo &field, const QString &declaration)
{
    const qsizetype open = declaration.indexOf(u'(');
    const QString name = declaration.left(open).simplified().toUpper();
    setType(field, typeOf(name));
    if (open < 0)
        return;
    const QStringList numbers = declaration.mid(open + 1).remove(u')').split(u',');
    const qint32 first = numbers.at(0).trimmed().toInt();
    const qint32 second = numbers.size() > 1 ? numbers.at(1).trimmed().toInt() : 0;
    if (field.type == adNumeric) {
        field.precision = first;
        field.numericScale = second;
    } else if (field.type == adVarWChar || field.type == adWChar) {
        field.definedSize = first;
    }
}

void applyValue(FieldInfo &field, const RawValue &value)
{
    switch (value.kind) {
    case RawValue::Kind::Integer:
        return setType(field, value.integer == static_cast<qint32>(value.integer) ? adInteger : adBigInt);
    case RawValue::Kind::Real:
        return setType(field, adDouble);
    case RawValue::Kind::Blob:
        return setType(field, adLongVarBinary);
    case RawValue::Kind::Text:
    case RawValue::Kind::Null:
        return setType(field, adVarWChar);
    }
}

} // namespace ADODB::SqliteTypes
