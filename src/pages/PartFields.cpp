#include "pages/PartFields.h"

#include "sql/Brackets.h"
#include "sql/Names.h"
#include "sql/StatementLines.h"
#include "sql/select/SelectParts.h"

namespace KOVAVSFDataGridLib::PartFields {

using namespace Qt::StringLiterals;

namespace {

// Brackets around an expression or an alias would turn it into a name.
QString enclosed(const QString &field)
{
    return isMoreThanAName(field) ? field : partsInBrackets(field);
}

// Writes an alias with AS, or it would be taken for part of the name. After an expression, an apparent alias
// can be its last word.
QString itemText(const SqlScanner &sql, const SelectParts::Item &item)
{
    const bool hasAlias = item.value.end < item.tokens.end;
    const bool isOneName =
        item.isName || item.value.end - item.value.begin == 1 || sql.isSymbol(item.value.end - 1, u')');
    if (!hasAlias || item.hasAs || !isOneName)
        return textOf(sql, item.tokens);
    return textOf(sql, item.value) + u" AS "_s + textOf(sql, TextRange{item.value.end, item.tokens.end});
}

// The fields of a star, each name once: two equal names would be ambiguous.
QStringList starFields(const QString &star, const QString &table, AllDBType database,
                       const StarReader &reader)
{
    const QStringList names = reader(u"select %1 from %2"_s.arg(star, table)).value_or(QStringList());
    const QString qualifier = star.chopped(1); // including its dot
    const Dialect dialect = dialectOf(database, {});
    QStringList fields;
    for (const QString &name : names) {
        if (names.count(name) > 1)
            continue;
        if (!writesBrackets(database))
            fields += qualifier + writtenName(dialect, name);
        else if (!qualifier.isEmpty() || isMoreThanAName(name) || name.contains(u'.'))
            fields += qualifier + quotedName(dialect, name);
        else
            fields += name;
    }
    return fields;
}

} // namespace

std::optional<NamedFields> read(const QString &statement, AllDBType database, const StarReader &reader)
{
    const SqlScanner sql(joinStatementLines(statement));
    const SelectParts parts = SelectParts::of(sql);
    if (!parts.isSelect || parts.source.isEmpty())
        return std::nullopt;
    NamedFields named;
    named.table = textOf(sql, parts.source);
    named.words = textOf(sql, parts.listWords);
    named.group = textOf(sql, parts.group);
    for (const SelectParts::Item &item : parts.items) {
        if (item.tokens.isEmpty())
            return std::nullopt; // can't be parsed: the previous list is better than half of a new one
        if (item.isStar) {
            if (reader)
                named.fields += starFields(textOf(sql, item.tokens), named.table, database, reader);
            continue;
        }
        const QString text = itemText(sql, item);
        named.fields += writesBrackets(database) ? withoutSpareBrackets(text) : text;
    }
    return named;
}

QString compose(const NamedFields &named, AllDBType database)
{
    if (named.fields.isEmpty())
        return {};
    QStringList written;
    for (const QString &field : named.fields)
        written += writesBrackets(database) ? enclosed(field) : field;
    return u"select "_s + (named.words.isEmpty() ? QString() : named.words + u' ') + written.join(u',') +
           u" from "_s + named.table + (named.group.isEmpty() ? QString() : u' ' + named.group);
}

bool isSame(const QString &a, const QString &b)
{
    return withoutSpareBrackets(a).compare(withoutSpareBrackets(b), Qt::CaseInsensitive) == 0;
}

} // namespace KOVAVSFDataGridLib::PartFields
