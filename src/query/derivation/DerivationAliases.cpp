#include "query/derivation/Derivation.h"

#include "sql/Names.h"
#include "sql/Predicates.h"
#include "sql/select/SqlWalk.h"

#include <algorithm>
#include <ranges>

// Finds the aliases that a condition and a sort use: a derived statement may lack the list that defines them.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

// Not in double quotes: SQLite takes a quoted name for a string if there is no such column.
QString Derivation::asColumn(const QString &alias)
{
    return alias.isEmpty() ? QString() : enclosed(u'`', alias, u'`');
}

bool Derivation::usesName(qsizetype token, const QString &name) const
{
    return m_sql.isName(token) && m_sql.name(token).compare(name, Qt::CaseInsensitive) == 0 &&
           !m_sql.isSymbol(token - 1, u'.') && !m_sql.isSymbol(token + 1, u'.') &&
           !m_sql.isSymbol(token + 1, u'(');
}

bool Derivation::usesName(TextRange range, const QString &name) const
{
    for (qsizetype i = range.begin; i < range.end; ++i) {
        if (usesName(i, name))
            return true;
    }
    return false;
}

bool Derivation::sortsByExpressionOf(const QString &alias) const
{
    return std::ranges::any_of(m_parts.sort, [&](const SelectParts::Item &term) {
        return !term.isName && usesName(term.value, alias);
    });
}

// Whether the alias is in a sub-select, where only the engine can tell it from the columns of other tables.
bool Derivation::sortsBySubselectOf(const QString &alias) const
{
    if (!readsAliasesInSortExpressions(m_dialect.engine))
        return false;
    for (qsizetype i = m_parts.order.begin; i < m_parts.order.end; ++i) {
        if (isSubselect(m_sql, i) && usesName({i, afterBrackets(m_sql, i)}, alias))
            return true;
    }
    return false;
}

QStringList Derivation::aliasesToTell() const
{
    const Engine engine = m_dialect.engine;
    // Otherwise the sort stays as it is written.
    const bool isWrittenAgain =
        !m_parts.isCompound && ((!m_parts.isGrouped && !m_parts.isLimited) || !keepsInnerSort(m_dialect));
    QStringList aliases;
    for (const SelectParts::Item &item : m_parts.items) {
        const bool isUsed =
            (readsAliasesInConditions(engine) && usesName(m_parts.where, item.alias)) ||
            (readsAliasesInSortExpressions(engine) && isWrittenAgain && sortsByExpressionOf(item.alias));
        if (isUsed && !item.alias.isEmpty() && !aliases.contains(asColumn(item.alias)))
            aliases.append(asColumn(item.alias));
    }
    return aliases;
}

std::map<qsizetype, int> Derivation::aliasesIn(const SelectParts::Item &term) const
{
    std::map<qsizetype, int> found;
    for (qsizetype i = term.value.begin; i < term.value.end && !term.isName; ++i) {
        for (std::size_t field = 0; field < m_itemOfField.size(); ++field) {
            if (m_itemOfField[field] < 0)
                continue;
            const QString &alias = m_parts.items[static_cast<std::size_t>(m_itemOfField[field])].alias;
            if (!alias.isEmpty() && usesName(i, alias) && m_usedAliases.contains(alias))
                found.emplace(i, static_cast<int>(field));
        }
    }
    return found;
}

// The term with the values of the list entries that it means, which the list may lose. An expression in a
// DISTINCT keeps its aliases: its entries stay, or it goes with them.
QString Derivation::stableTerm(const SelectParts::Item &term) const
{
    const int field = meansEntry(term) ? fieldOfTerm(term) : -1;
    if (field >= 0 && !m_written.at(field).isEmpty())
        return sortedAs(term, m_written.at(field));
    QString text = withWordsApart(term.tokens, 1);
    if (isDistinct())
        return text;
    for (const auto &[token, named] : aliasesIn(term) | std::views::reverse)
        text.replace(m_sql.at(token).start - m_sql.at(term.tokens.begin).start, m_sql.at(token).length,
                     m_written.at(named));
    return text;
}

QString Derivation::statementOfOrder(qsizetype field) const
{
    const QString value = m_written.value(field);
    if (value.isEmpty())
        return {};
    return prefix() + u"SELECT * FROM (\nSELECT %1\nFROM %2\nORDER BY %1\n)"_s.arg(value, source()) +
           innerTableAlias(m_dialect, u"Q"_s);
}

QString Derivation::sortedAs(const SelectParts::Item &term, const QString &value)
{
    return term.rest.isEmpty() ? value : value + u' ' + term.rest;
}

QStringList Derivation::sortTerms() const
{
    QStringList terms;
    for (const SelectParts::Item &term : m_parts.sort)
        terms.append(stableTerm(term));
    return terms;
}

QString Derivation::stableSort() const
{
    if (m_parts.order.isEmpty())
        return {};
    const QStringList terms = sortTerms();
    const bool isAsWritten = std::ranges::equal(
        terms, m_parts.sort, {}, {}, [this](const auto &term) { return withWordsApart(term.tokens, 1); });
    return isAsWritten ? u' ' + withWordsApart(m_parts.order, 1) : u" ORDER BY "_s + terms.join(u',');
}

} // namespace KOVAVSFDataGridLib
