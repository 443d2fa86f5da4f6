#pragma once

#include "filter/conditions/FilterSql.h"

#include <functional>
#include <optional>
#include <vector>

namespace KOVAVSFDataGridLib {

// Conditions in groups, which can be nested. There are two equivalent forms: rows with brackets and joins
// (FilterSql::Term without conditions), and this tree.
struct FilterNode
{
    enum class Kind {
        Condition,
        All, // of its parts must be met
        Any,
        None
    };

    Kind kind = Kind::Condition;
    qsizetype row = -1;                 // for a condition
    bool isComplement = false;          // whether it selects the records that do not meet the condition
    std::vector<FilterNode> parts = {}; // for a group
    // Whether the group has its own brackets; if not, it exists because AND has precedence over OR.
    bool hasBrackets = false;

    bool isGroup() const { return kind != Kind::Condition; }
    bool operator==(const FilterNode &) const = default;
};

// One row of the flat form: the brackets and the join of row `row`.
struct FilterPlace
{
    qsizetype row = -1;
    bool isComplement = false;
    FilterSql::Term term = {};
};

// The rows (numbered from 0) by the precedence in databases; no value if brackets don't match. The outermost
// node is a group without brackets.
std::optional<FilterNode> treeOf(const QList<FilterSql::Term> &terms);

// The rows of a tree in order, with the equivalent brackets.
QList<FilterPlace> flatOf(const FilterNode &tree);

// Whether brackets could clarify the precedence; and the tree with all of these brackets.
bool needsBrackets(const FilterNode &tree);
FilterNode withBrackets(FilterNode tree);

// Only the wanted rows; groups without any are removed. No value if none is left.
std::optional<FilterNode> withRows(const FilterNode &tree,
                                   const std::function<bool(qsizetype row)> &isWanted);

// The same records without groups of kind None: their conditions become complements instead.
FilterNode withoutNone(const FilterNode &tree);

} // namespace KOVAVSFDataGridLib
