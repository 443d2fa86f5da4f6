#include "query/derivation/Derivation.h"

#include "query/derivation/ConstantItem.h"
#include "query/derivation/SameName.h"
#include "sql/Names.h"

#include <algorithm>

// The functions that derive statements with other fields.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

QString Derivation::withFields(const QStringList &listEntries) const
{
    if (listEntries.isEmpty() || !whyNot(DerivationStep::Fields).isEmpty())
        return {};
    return withList(listEntries.join(u','), listEntries);
}

QString Derivation::asTableWith(const QStringList &names) const
{
    QStringList entries;
    for (const QString &name : names)
        entries.append(writtenName(m_dialect, name));
    const QString sort = outerSort();
    return ComposeSQL(prefix() + u"SELECT "_s + entries.join(u',') + u" FROM "_s + asTable(), {},
                      sort.isEmpty() ? QString() : u"ORDER BY "_s + sort);
}

QString Derivation::withList(const QString &list, const QStringList &entries) const
{
    if (isTextWork(DerivationStep::Fields))
        return u"SELECT "_s + list + getFromPart(m_sql.sql());
    if (isDistinctTable())
        return distinctTable().withList(list, entries);
    if (keepsListWords() && losesTop(entries))
        return asTableWith(namesOf(entries));
    SQLSentence sentence = base();
    if (isSimple())
        sentence.order = stableSort();
    if (keepsListWords())
        sentence = {headWith(list), withWordsApart(m_parts.where, 1), sortWithin(entries)};
    else
        sentence.fields = prefix() + u"SELECT "_s + list + u" FROM "_s + source();
    return joinSQLSentence(sentence);
}

QString Derivation::withFieldsOf(const Derivation &fieldStatement) const
{
    if (!whyNot(DerivationStep::Fields).isEmpty())
        return {};
    if (m_sql.sql() == fieldStatement.m_sql.sql())
        return m_sql.sql();
    const auto sameText = [](const QString &a, const QString &b) {
        return a.simplified().compare(b.simplified(), Qt::CaseInsensitive) == 0;
    };
    const bool hasWords = keepsListWords() && fieldStatement.keepsListWords();
    const QStringList entries = fieldStatement.m_listed.contains(QString())
                                    ? splitList(fieldStatement.listText(), m_dialect)
                                    : fieldStatement.m_listed;
    if (!hasWords && m_kind != Kind::Closed && sameText(source(), fieldStatement.source()))
        return withList(fieldStatement.m_kind == Kind::Closed ? fieldStatement.tableList()
                                                              : fieldStatement.listText(),
                        entries);
    if (hasWords && isOverSame(fieldStatement)) {
        // The statement that these fields were chosen from
        if (fieldStatement.areListed(m_listed))
            return withList(fieldStatement.listText(), entries);
        // An alias of the other statement can be the name of another field of this one.
        const QStringList listed = areListed(entries) ? QStringList() : listedFor(fieldStatement);
        return listed.isEmpty() && (areListed(entries) || !canLoseTop())
                   ? withList(fieldStatement.listText(), entries)
                   : withFields(listed);
    }
    if (!m_parts.isDerivedTable)
        return withFields(listedFor(fieldStatement));
    QStringList named;
    for (const QString &name : fieldStatement.m_names) {
        const qsizetype at = m_names.indexOf(name);
        const bool isListed = at >= 0 && !m_listed.at(at).isEmpty();
        // Otherwise it is a field of the table, but not of the list.
        named.append(isListed ? m_listed.at(at) : writtenName(m_dialect, name));
    }
    return withFields(named);
}

QString Derivation::fieldsStatement() const
{
    if (m_kind == Kind::Closed)
        return keepsListWords() ? headWith(listText()) : m_sql.sql();
    return base().fields;
}

const QStringList &Derivation::listedIn(const Derivation &derived) const
{
    const bool isTableThere = derived.m_parts.isDerivedTable && !m_parts.isDerivedTable;
    return m_kind == Kind::Closed && isTableThere ? m_written : m_listed;
}

// A constant does not sort, and engines reject it or take it for a position.
bool Derivation::sortsByConstant(const SelectParts::Item &term) const
{
    const int field = fieldOfTerm(term);
    const int item = field < 0 ? -1 : m_itemOfField[static_cast<std::size_t>(field)];
    return item >= 0 && isConstant(m_sql, m_parts.items[static_cast<std::size_t>(item)]);
}

// With DISTINCT, a sort can use only fields of the list. Some engines allow others, as long as no field goes.
bool Derivation::canSortWithin(const SelectParts::Item &term, const QStringList &entries) const
{
    const auto isEntry = [&](const QString &listed) { return entries.contains(listed); };
    if (!isDistinct() || std::ranges::all_of(m_listed, isEntry))
        return true;
    if (const int field = fieldOfTerm(term); field >= 0)
        return isEntry(m_listed.at(field));
    const auto named = aliasesIn(term);
    return !named.empty() &&
           std::ranges::all_of(named, [&](const auto &alias) { return isEntry(m_listed.at(alias.second)); });
}

QString Derivation::sortWithin(const QStringList &entries) const
{
    QStringList terms;
    for (const SelectParts::Item &term : m_parts.sort) {
        if (sortsByConstant(term) || !canSortWithin(term, entries))
            continue;
        const int field = fieldOfTerm(term);
        terms.append(field < 0 ? textOf(m_sql, term.tokens) : sortedAs(term, sortValueOf(field)));
    }
    return terms.isEmpty() ? QString() : u" ORDER BY "_s + terms.join(u',');
}

// A bare name that is also the alias of another field means that one in a sort. The other list can have such
// an alias, so the column of a field with an alias is qualified.
QString Derivation::sortValueOf(int field) const
{
    const int at = m_itemOfField[static_cast<std::size_t>(field)];
    const SelectParts::Item *const item = at < 0 ? nullptr : &m_parts.items[static_cast<std::size_t>(at)];
    if (!item || !item->isName)
        return valueOf(field);
    const QString &written = m_written.at(field);
    const QString value = m_kind == Kind::Open && !written.isEmpty() ? written : valueOf(field);
    const bool isBare = item->value.end - item->value.begin == 1 && !value.contains(u'.');
    const bool isOfOneTable = m_parts.sources.size() == 1 && !m_parts.sources.front().writtenAlias.isEmpty();
    return isBare && isOfOneTable && !item->alias.isEmpty() &&
                   !isSameName(item->alias, m_sql.name(item->value.begin))
               ? m_parts.sources.front().writtenAlias + u'.' + value
               : value;
}

QString Derivation::withSortOf(const Derivation &other) const
{
    if (other.isDistinctTable())
        return withSortOf(other.distinctTable());
    const bool isSortedByList =
        keepsListWords() && isDistinct() && !m_parts.isTop && other.keepsListWords() && other.isDistinct();
    const QString sort = isSortedByList ? other.sortWithin(m_listed) : QString();
    if (!isSortedByList || sort == sortWithin(m_listed))
        return m_sql.sql();
    return joinSQLSentence({headWith(listText()), withWordsApart(m_parts.where, 1), sort});
}

// Where its list can't change, fewer fields are those of the whole statement, and fewer records.
bool Derivation::isDistinctTable() const
{
    return m_isListUsed && isDistinct() && !m_parts.isTop;
}

Derivation Derivation::distinctTable() const
{
    std::vector<SourceField> fields;
    for (const QString &name : m_names)
        fields.push_back({name, m_types[fields.size()]});
    return {joinSQLSentence(base()), fields, m_dialect};
}

// TOP takes its records by the whole sort.
bool Derivation::canLoseTop() const
{
    return m_parts.isTop && isDistinct() && !m_parts.sort.empty();
}

bool Derivation::areListed(const QStringList &entries) const
{
    return std::ranges::all_of(entries, [&](const QString &entry) { return m_listed.contains(entry); });
}

bool Derivation::losesTop(const QStringList &entries) const
{
    const auto isLost = [&](const SelectParts::Item &term) {
        return !sortsByConstant(term) && !canSortWithin(term, entries);
    };
    return canLoseTop() && !entries.isEmpty() && areListed(entries) &&
           std::ranges::any_of(m_parts.sort, isLost);
}

QStringList Derivation::namesOf(const QStringList &entries) const
{
    QStringList names;
    for (const QString &entry : entries)
        names.append(m_names.at(m_listed.indexOf(entry)));
    return names;
}

QString Derivation::valueOf(int field) const
{
    const int item = m_itemOfField[static_cast<std::size_t>(field)];
    if (item < 0 || m_parts.items[static_cast<std::size_t>(item)].isStar)
        return m_listed.at(field).isEmpty() ? writtenName(m_dialect, m_names.at(field)) : m_listed.at(field);
    return textOf(m_sql, m_parts.items[static_cast<std::size_t>(item)].value);
}

} // namespace KOVAVSFDataGridLib
