#include "query/derivation/Derivation.h"

#include "sql/Names.h"
#include "sql/Predicates.h"
#include "sql/select/LimitFence.h"
#include "sql/select/SqlWalk.h"

#include <algorithm>
#include <ranges>

// Writes a statement as a derived table, and its sort for use outside that table. What the sort uses and the
// result lacks is a further field of the table where the engine wouldn't keep the table's own order; only the
// fields of the result are then selected from it.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

struct Edit
{
    qsizetype from;
    qsizetype length;
    QString text;
};

} // namespace

QString Derivation::asTable() const
{
    qsizetype end = m_sql.count();
    while (m_sql.isSymbol(end - 1, u';'))
        --end;
    const TextRange all{m_parts.with.end, end};
    std::vector<Edit> edits;
    // A limit depends on the order of its rows, and so does DISTINCT ON. Any other sort is applied outside.
    const bool isOrdered =
        !m_parts.order.isEmpty() && !m_parts.isLimited && !m_parts.isTop && !m_parts.isDistinctOn;
    if (isOrdered && (!outerSort().isEmpty() || !keepsInnerSort(m_dialect))) {
        const qsizetype from = m_sql.at(m_parts.order.begin).start;
        edits.push_back({from, m_sql.at(m_parts.order.end - 1).end() - from, {}});
    }
    for (const qsizetype word : firstListWords(m_sql, all))
        edits.push_back({m_sql.at(word).start, m_sql.at(word).length, {}});
    if (const QString keys = sortKeys(); !keys.isEmpty())
        edits.push_back({m_sql.at(m_parts.list.end - 1).end(), 0, keys});
    // An engine calls a field without an alias by its text, which the line breaks change.
    for (std::size_t i = 0; i < m_itemOfField.size(); ++i) {
        if (m_itemOfField[i] < 0)
            continue;
        const SelectParts::Item &item = m_parts.items[static_cast<std::size_t>(m_itemOfField[i])];
        const QString &name = m_names.at(static_cast<qsizetype>(i));
        if (item.alias.isEmpty() && !item.isStar && !name.isEmpty() &&
            withWordsApart(item.tokens, 0) != textOf(m_sql, item.tokens))
            edits.push_back(
                {m_sql.at(item.tokens.end - 1).end(), 0, u" AS "_s + writtenName(m_dialect, name)});
    }
    // From the back, so that the places in front stay the same.
    std::ranges::stable_sort(edits, std::ranges::greater(), &Edit::from);
    QString inner = withWordsApart(all, 0);
    for (const Edit &edit : edits)
        inner.replace(edit.from - m_sql.at(all.begin).start, edit.length, edit.text);
    inner = inner.trimmed();
    if (needsFence(m_sql, {0, end}, m_dialect.engine))
        inner = fenced(inner, m_dialect.engine);
    // A line comment at the end must not include the bracket.
    return u"(\n"_s + inner + u"\n)"_s + innerTableAlias(m_dialect, u"Q"_s);
}

// The list that has the fields of the result.
QString Derivation::tableList() const
{
    return sortKeys().isEmpty() ? u"*"_s : m_written.join(u',');
}

std::vector<OuterTerm> Derivation::outerTerms() const
{
    std::vector<OuterTerm> terms;
    for (const SelectParts::Item &term : m_parts.sort) {
        const int field = fieldOfTerm(term);
        const QString name = field < 0 ? sortKey(terms.size()) : writtenName(m_dialect, m_names.at(field));
        terms.push_back({field, name.isEmpty() ? name : sortedAs(term, name), term.isDescending});
    }
    return terms;
}

QString Derivation::outerSort() const
{
    QStringList terms;
    for (const OuterTerm &term : outerTerms()) {
        if (term.text.isEmpty())
            return {};
        terms.append(term.text);
    }
    return terms.join(u',');
}

bool Derivation::losesSort() const
{
    return isSorted() && !keepsInnerSort(m_dialect) && outerSort().isEmpty();
}

// How a term that sorts by no field of the result is named outside the table; empty if it can't be.
QString Derivation::sortKey(std::size_t term) const
{
    if (keepsInnerSort(m_dialect))
        return {};
    // It can only use fields of the result.
    if (m_parts.isCompound)
        return withWordsApart(m_parts.sort[term].value, 0);
    // Further fields would be further records of a DISTINCT.
    if (m_kind != Kind::Closed || m_names.isEmpty() || m_parts.list.isEmpty() || m_parts.isDistinct ||
        m_parts.isVersioned)
        return {};
    QString name = u"SortKey%1"_s.arg(term + 1);
    while (m_countOfName.contains(name.toCaseFolded()))
        name += u'_';
    return name;
}

// The fields of the table that its sort needs beside those of the result, as they follow its list.
QString Derivation::sortKeys() const
{
    QString keys;
    for (std::size_t i = 0; i < m_parts.sort.size() && !m_parts.isCompound; ++i) {
        const QString name = fieldOfTerm(m_parts.sort[i]) < 0 ? sortKey(i) : QString();
        if (!name.isEmpty())
            keys += u", "_s + keyValue(m_parts.sort[i]) + u" AS "_s + name;
    }
    return keys;
}

QList<OfferedField> Derivation::sortKeyFields() const
{
    QList<OfferedField> fields;
    for (std::size_t i = 0; i < m_parts.sort.size() && !m_parts.isCompound; ++i) {
        const SelectParts::Item &term = m_parts.sort[i];
        if (const QString name = fieldOfTerm(term) < 0 ? sortKey(i) : QString(); !name.isEmpty())
            fields.append({.name = textOf(m_sql, term.value).simplified(), .written = name});
    }
    return fields;
}

// A list can't use its own aliases, except in a sub-select.
QString Derivation::keyValue(const SelectParts::Item &term) const
{
    const auto isInSubselect = [&](qsizetype token) {
        for (qsizetype i = term.value.begin; i < token; ++i) {
            if (isSubselect(m_sql, i) && afterBrackets(m_sql, i) > token)
                return true;
        }
        return false;
    };
    QString text = withWordsApart(term.value, 0);
    for (const auto &[token, field] : aliasesIn(term) | std::views::reverse) {
        if (!isInSubselect(token))
            text.replace(m_sql.at(token).start - m_sql.at(term.value.begin).start, m_sql.at(token).length,
                         u'(' + valueOf(field) + u')');
    }
    return text;
}

bool Derivation::isSortedInside() const
{
    const bool passesOrder = !isSorted() && m_parts.sources.size() == 1 && !m_parts.isGrouped &&
                             !m_parts.isCompound && !m_parts.isDistinct && !m_parts.hasWindow;
    if (!passesOrder || !isSubselect(m_sql, m_parts.source.begin))
        return false;
    const qsizetype close = afterBrackets(m_sql, m_parts.source.begin) - 1;
    const Derivation inner(textOf(m_sql, {m_parts.source.begin + 1, close}), {}, m_dialect);
    return inner.isSortedInside() ||
           std::ranges::any_of(inner.outerTerms(), [](const OuterTerm &term) { return term.field < 0; });
}

} // namespace KOVAVSFDataGridLib
