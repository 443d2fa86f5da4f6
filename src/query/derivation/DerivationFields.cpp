#include "query/derivation/Derivation.h"

#include "sql/Names.h"

#include <algorithm>

// Statements with other fields.

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
    if (!hasWords && m_kind != Kind::Closed && sameText(source(), fieldStatement.source()))
        return withList(fieldStatement.m_kind == Kind::Closed ? u"*"_s : fieldStatement.listText(), {});
    if (hasWords &&
        sameText(textOf(m_sql, m_parts.source), textOf(fieldStatement.m_sql, fieldStatement.m_parts.source)))
        return withList(fieldStatement.listText(), splitList(fieldStatement.listText(), m_dialect));
    QHash<QString, qsizetype> placeOfName;
    for (qsizetype i = m_names.size() - 1; i >= 0; --i)
        placeOfName.insert(m_names.at(i), i);
    QStringList entries;
    for (const QString &name : fieldStatement.m_names) {
        const qsizetype at = placeOfName.value(name, -1);
        if (at >= 0 && !m_listed.at(at).isEmpty())
            entries.append(m_listed.at(at));
        else if (m_parts.isDerivedTable)
            entries.append(writtenName(m_dialect, name)); // of the table, though not of the list
        else
            return {};
    }
    return withFields(entries);
}

QStringList Derivation::listedFor(const Derivation &part) const
{
    QStringList entries;
    for (qsizetype i = 0; i < part.m_names.size(); ++i) {
        const qsizetype own = fieldFor(part.valueOf(static_cast<int>(i)).simplified(), part.m_names.at(i));
        if (own < 0)
            return {};
        entries.append(m_listed.at(own));
    }
    return entries;
}

// The field with that value, of several the one with that name, else the first with that name. A field that
// comes through a star is known by the way it is listed.
qsizetype Derivation::fieldFor(const QString &value, const QString &name) const
{
    const auto isSame = [&value](const QString &text) {
        return text.simplified().compare(value, Qt::CaseInsensitive) == 0;
    };
    qsizetype found = -1;
    for (qsizetype own = m_names.size() - 1; own >= 0; --own) {
        if (!isSame(valueOf(static_cast<int>(own))) && !isSame(m_listed.at(own)))
            continue;
        if (found < 0 || m_names.at(own) == name || m_names.at(found) != name)
            found = own;
    }
    return found >= 0 ? found : m_names.indexOf(name);
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

// With DISTINCT, a sort can only be by fields of the list.
QString Derivation::sortWithin(const QStringList &entries) const
{
    QStringList terms;
    for (const SelectParts::Item &term : m_parts.sort) {
        const int field = fieldOfTerm(term);
        const QString direction = textOf(m_sql, {term.value.end, term.tokens.end});
        if (field < 0 && !isDistinct())
            terms.append(textOf(m_sql, term.tokens));
        else if (field >= 0 && (!isDistinct() || entries.contains(m_listed.at(field))))
            terms.append(valueOf(field) + (direction.isEmpty() ? QString() : u' ' + direction));
    }
    return terms.isEmpty() ? QString() : u" ORDER BY "_s + terms.join(u',');
}

QString Derivation::valueOf(int field) const
{
    const int item = m_itemOfField[static_cast<std::size_t>(field)];
    if (item < 0 || m_parts.items[static_cast<std::size_t>(item)].isStar)
        return writtenName(m_dialect, m_names.at(field));
    return textOf(m_sql, m_parts.items[static_cast<std::size_t>(item)].value);
}

} // namespace KOVAVSFDataGridLib
