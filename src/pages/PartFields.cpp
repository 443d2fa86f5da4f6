#include "pages/PartFields.h"

#include "query/derivation/SqlText.h"
#include "sql/SelectParts.h"

#include <QtCore/QRegularExpression>

namespace KOVAVSFDataGridLib::PartFields {

using namespace Qt::StringLiterals;

namespace {

// Brackets that a name could do without go; what is in others could be taken for an expression.
QString withoutBrackets(const QString &name)
{
    static const QRegularExpression enclosed(uR"(\A\[([\p{L}\p{N}_ ]+)\]\z)"_s,
                                             QRegularExpression::UseUnicodePropertiesOption);
    const auto match = enclosed.match(name);
    return match.hasMatch() ? match.captured(1) : name;
}

// Brackets would make a strange name of an expression or an alias, and can't stand around others.
bool isMoreThanAName(const QString &field)
{
    static const QRegularExpression signs(uR"x([\[\]()"'`*/+|<>=-]|\sas\s)x"_s,
                                          QRegularExpression::CaseInsensitiveOption);
    return field.contains(signs);
}

QString enclosed(const QString &field)
{
    return isMoreThanAName(field) ? field : u'[' + QString(field).replace(u'.', "].["_L1) + u']';
}

// An alias gets its AS, without which it would be taken for a part of the name.
QString itemText(const SqlScanner &sql, const SelectParts::Item &item)
{
    const bool hasAlias = item.value.end < item.tokens.end;
    if (!hasAlias || sql.isWord(item.value.end, u"AS"))
        return textOf(sql, item.tokens);
    return textOf(sql, item.value) + u" AS "_s + textOf(sql, TextRange{item.value.end, item.tokens.end});
}

} // namespace

std::optional<NamedFields> read(const QString &statement, AllDBType database)
{
    const SqlScanner sql(joinStatementLines(statement));
    const SelectParts parts = SelectParts::of(sql);
    if (!parts.isSelect || parts.source.isEmpty())
        return std::nullopt;
    NamedFields named;
    named.table = textOf(sql, parts.source);
    named.words = textOf(sql, parts.listWords);
    for (const SelectParts::Item &item : parts.items) {
        if (item.tokens.isEmpty())
            return std::nullopt; // not to be understood: what was listed before is better than half of it
        if (item.isStar)
            continue;
        const QString text = itemText(sql, item);
        named.fields += database == dbAccess ? withoutBrackets(text) : text;
    }
    return named;
}

QString compose(const QStringList &fields, const QString &table, AllDBType database, const QString &words)
{
    if (fields.isEmpty())
        return {};
    QStringList written;
    for (const QString &field : fields)
        written += database == dbAccess ? enclosed(field) : field;
    return u"select "_s + (words.isEmpty() ? QString() : words + u' ') + written.join(u',') + u" from "_s +
           table;
}

bool isSame(const QString &a, const QString &b)
{
    return withoutBrackets(a).compare(withoutBrackets(b), Qt::CaseInsensitive) == 0;
}

} // namespace KOVAVSFDataGridLib::PartFields
