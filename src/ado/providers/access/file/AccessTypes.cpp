#include "ado/providers/access/file/AccessTypes.h"

#include "ado/providers/access/sql/AccessCollation.h"

#include <QtCore/QStringList>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace ADODB::AccessTypes {

namespace {

// Encoded in the declared type, because SQLite has no other place for it.
constexpr QLatin1StringView keyWord("KEYPART");
constexpr QLatin1StringView autoNumberWord("AUTONUMBER");

struct Type
{
    AccessType access;
    QLatin1StringView name; // tells SQLite how to compare: as a number, TEXT or BLOB
    DataTypeEnum ado;
    qint32 bytes;
    qint32 precision;
};

constexpr Type types[] = {
    {AccessType::YesNo, "YESNO"_L1, adBoolean, 2, 0},
    {AccessType::Byte, "BYTE"_L1, adUnsignedTinyInt, 1, 3},
    {AccessType::Integer, "SHORT"_L1, adSmallInt, 2, 5},
    {AccessType::LongInteger, "LONG"_L1, adInteger, 4, 10},
    {AccessType::Currency, "CURRENCY"_L1, adCurrency, 8, 19},
    {AccessType::Single, "SINGLE"_L1, adSingle, 4, 7},
    {AccessType::Double, "DOUBLE"_L1, adDouble, 8, 15},
    {AccessType::DateTime, "DATETIME TEXT"_L1, adDate, 8, 0},
    {AccessType::Binary, "BINARY BLOB"_L1, adVarBinary, 0, 0},
    {AccessType::Text, "TEXT"_L1, adVarWChar, 0, 0},
    {AccessType::OleObject, "LONGBINARY BLOB"_L1, adLongVarBinary, 0, 0},
    {AccessType::Memo, "MEMO TEXT"_L1, adLongVarWChar, 0, 0},
    {AccessType::Guid, "GUID TEXT"_L1, adGUID, 16, 0},
    {AccessType::Numeric, "DECIMAL"_L1, adNumeric, 19, 0},
    {AccessType::Complex, "COMPLEX"_L1, adInteger, 4, 10},
    {AccessType::LargeNumber, "LARGENUMBER"_L1, adBigInt, 8, 19},
};
// A type that is newer than this table is shown as raw bytes.
constexpr Type unknown{AccessType::Binary, "BINARY BLOB"_L1, adVarBinary, 0, 0};

const Type &typeOf(AccessType type)
{
    const auto *found =
        std::find_if(std::begin(types), std::end(types), [&](const Type &t) { return t.access == type; });
    return found == std::end(types) ? unknown : *found;
}

// Chooses the longest match, because LONG is also the beginning of another name.
const Type &typeOf(const QString &declaration)
{
    const Type *longest = &unknown;
    for (const Type &type : types) {
        const bool isLonger = longest == &unknown || type.name.size() > longest->name.size();
        if (declaration.startsWith(type.name) && isLonger)
            longest = &type;
    }
    return *longest;
}

} // namespace

Family familyOf(AccessType type)
{
    switch (typeOf(type).ado) {
    case adVarWChar:
    case adLongVarWChar:
    case adGUID:
        return Family::Text;
    case adDate:
        return Family::Date;
    case adVarBinary:
    case adLongVarBinary:
        return Family::Bytes;
    default:
        return Family::Number;
    }
}

const char *collation(AccessType type)
{
    return familyOf(type) == Family::Date ? AccessCollation::dateName : AccessCollation::textName;
}

QString declaration(const AccessColumn &column)
{
    const Type &type = typeOf(column.type);
    QString text = type.name;
    if (column.isAutoNumber)
        text += u' ' + autoNumberWord;
    if (column.isKey)
        text += u' ' + keyWord;
    if (type.ado == adNumeric)
        text += u"(%1,%2)"_s.arg(column.precision).arg(column.scale);
    else if (type.bytes == 0 && column.declaredSize > 0)
        text += u"(%1)"_s.arg(column.declaredSize);
    if (column.isAutoNumber || column.isKey)
        text += " NOT NULL"_L1;
    return text + " COLLATE "_L1 + QLatin1StringView(collation(column.type));
}

void applyDeclaration(FieldInfo &field, const QString &declaration)
{
    const Type &type = typeOf(declaration);
    field.type = type.ado;
    field.definedSize = type.bytes;
    field.precision = type.precision;
    if (declaration.contains(keyWord))
        field.attributes |= adFldKeyColumn;
    if (declaration.contains(autoNumberWord))
        field.attributes |= adFldRowID;
    if (type.bytes > 0)
        field.attributes |= adFldFixed;
    if (type.ado == adLongVarBinary || type.ado == adLongVarWChar)
        field.attributes |= adFldLong;
    const qsizetype open = declaration.indexOf(u'(');
    if (open < 0)
        return;
    const QStringList numbers = declaration.mid(open + 1).remove(u')').split(u',');
    if (type.ado == adNumeric) {
        field.precision = numbers.value(0).toInt();
        field.numericScale = numbers.value(1).toInt();
    } else {
        field.definedSize = numbers.value(0).toInt();
    }
}

} // namespace ADODB::AccessTypes
