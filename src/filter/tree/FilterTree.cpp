#include "filter/tree/FilterTree.h"

#include <algorithm>
#include <utility>

namespace KOVAVSFDataGridLib {

namespace {

using Kind = FilterNode::Kind;
using FilterSql::Term;

// Converts rows with matching brackets to a tree.
class TreeReader
{
public:
    explicit TreeReader(const QList<Term> &terms) : m_terms(terms) { enterTerm(); }

    // From the next row to the bracket that closes this level, or to the end.
    FilterNode level(bool isNegated)
    {
        std::vector<FilterNode> alternatives;
        std::vector<FilterNode> joined;
        for (;;) {
            joined.push_back(operand());
            const bool isEnd = m_at >= m_terms.size() || m_closes > 0;
            if (isEnd || m_terms.at(m_at - 1).orNext) {
                alternatives.push_back(joined.size() == 1 ? std::move(joined.front())
                                                          : FilterNode{.kind = Kind::All, .parts = joined});
                joined.clear();
            }
            if (isEnd)
                break;
        }
        const bool isAll = alternatives.size() == 1 && alternatives[0].kind == Kind::All &&
                           !alternatives[0].hasBrackets && !isNegated;
        if (isAll)
            return std::move(alternatives.front());
        const Kind kind = isNegated ? Kind::None : alternatives.size() == 1 ? Kind::All : Kind::Any;
        return {.kind = kind, .parts = std::move(alternatives)};
    }

private:
    // A row, or everything inside its next bracket.
    FilterNode operand()
    {
        if (m_opened < m_terms.at(m_at).opens) {
            const bool isNegated = m_terms.at(m_at).isNegated(m_opened++);
            FilterNode group = level(isNegated);
            group.hasBrackets = true;
            --m_closes;
            return group;
        }
        m_closes = m_terms.at(m_at).closes;
        FilterNode condition{.row = m_at++};
        enterTerm();
        return condition;
    }

    void enterTerm() { m_opened = 0; }

    const QList<Term> &m_terms;
    qsizetype m_at = 0;
    int m_opened = 0; // brackets of the next row that were already entered
    int m_closes = 0; // brackets of the last row that were not yet left
};

bool isBracketed(const FilterNode &part, Kind around)
{
    return part.hasBrackets || part.kind == Kind::None || (part.kind == Kind::Any && around == Kind::All);
}

void write(const FilterNode &group, QList<FilterPlace> &places)
{
    const bool isOr = group.kind != Kind::All;
    for (const FilterNode &part : group.parts) {
        const qsizetype first = places.size();
        if (part.isGroup())
            write(part, places);
        else
            places.append({part.row, part.isComplement, {}});
        if (places.size() == first)
            continue; // a group without rows
        if (part.isGroup() && isBracketed(part, group.kind)) {
            places[first].term.openAround(part.kind == Kind::None);
            ++places.last().term.closes;
        }
        places.last().term.orNext = isOr;
    }
}

} // namespace

std::optional<FilterNode> treeOf(const QList<FilterSql::Term> &terms)
{
    if (terms.isEmpty() || FilterSql::unmatchedBracket(terms) >= 0)
        return std::nullopt;
    return TreeReader(terms).level(false);
}

QList<FilterPlace> flatOf(const FilterNode &tree)
{
    QList<FilterPlace> places;
    FilterNode outermost{.kind = Kind::All};
    const bool isNone = tree.kind == Kind::None;
    if (isNone)
        outermost.parts.push_back(tree);
    write(isNone ? outermost : tree, places);
    if (!places.isEmpty())
        places.last().term.orNext = false;
    return places;
}

bool needsBrackets(const FilterNode &tree)
{
    const bool isMixed = tree.kind != Kind::All && tree.parts.size() > 1 &&
                         std::ranges::any_of(tree.parts, [](const FilterNode &part) {
                             return part.kind == Kind::All && !part.hasBrackets && part.parts.size() > 1;
                         });
    return isMixed || std::ranges::any_of(tree.parts, needsBrackets);
}

FilterNode withBrackets(FilterNode tree)
{
    for (FilterNode &part : tree.parts) {
        part = withBrackets(std::move(part));
        part.hasBrackets = part.isGroup();
    }
    return tree;
}

std::optional<FilterNode> withRows(const FilterNode &tree, const std::function<bool(qsizetype row)> &isWanted)
{
    if (!tree.isGroup())
        return isWanted(tree.row) ? std::optional(tree) : std::nullopt;
    FilterNode kept = tree;
    kept.parts.clear();
    for (const FilterNode &part : tree.parts) {
        if (auto wanted = withRows(part, isWanted))
            kept.parts.push_back(*std::move(wanted));
    }
    return kept.parts.empty() ? std::nullopt : std::optional(kept);
}

namespace {

FilterNode pushedDown(const FilterNode &node, bool isNegated)
{
    FilterNode pushed = node;
    if (!node.isGroup()) {
        pushed.isComplement = node.isComplement != isNegated;
        return pushed;
    }
    const bool isPartNegated = isNegated != (node.kind == Kind::None);
    const bool isAll = node.kind == Kind::All; // None means Any of the complements
    pushed.kind = isAll != isPartNegated ? Kind::All : Kind::Any;
    for (FilterNode &part : pushed.parts)
        part = pushedDown(part, isPartNegated);
    return pushed;
}

} // namespace

FilterNode withoutNone(const FilterNode &tree)
{
    return pushedDown(tree, false);
}

} // namespace KOVAVSFDataGridLib
