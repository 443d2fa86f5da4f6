#pragma once

#include "filter/conditions/FilterSql.h"

#include <functional>
#include <optional>
#include <vector>

namespace KOVAVSFDataGridLib {

// Conditions in groups, which can be parts of groups themselves. Two forms of the same: rows with brackets
// and joins (FilterSql::Term without their conditions), and this tree.
struct FilterNode
{
    enum class Kind {
        Condition,
        All, // of its parts are met
        Any,
        None
    };

    Kind kind = Kind::Condition;
    qsizetype row = -1;                 // of a condition
    bool isComplement = false;          // whether the records are wanted that do not meet the condition
    std::vector<FilterNode> parts = {}; // of a group
    // Whether the group is in brackets of its own; otherwise it is one because AND binds closer than OR.
    bool hasBrackets = false;

    bool isGroup() const { return kind != Kind::Condition; }
    bool operator==(const FilterNode &) const = default;
};

// One row of the flat form: brackets and join of the row `row` of the tree.
struct FilterPlace
{
    qsizetype row = -1;
    bool isComplement = false;
    FilterSql::Term term = {};
};

// As databases read the rows, which are counted from 0; nothing when their brackets don't match. The
// outermost node is a group without brackets.
std::optional<FilterNode> treeOf(const QList<FilterSql::Term> &terms);

// The rows of a tree in its order, with the brackets that say the same.
QList<FilterPlace> flatOf(const FilterNode &tree);

// Whether brackets would show how a database reads it, and the same with all of them.
bool needsBrackets(const FilterNode &tree);
FilterNode withBrackets(FilterNode tree);

// Only the rows that are wanted; groups without any go. Nothing when none is left.
std::optional<FilterNode> withRows(const FilterNode &tree,
                                   const std::function<bool(qsizetype row)> &isWanted);

// The same records, without groups of the kind None: the conditions in them are complements instead.
FilterNode withoutNone(const FilterNode &tree);

} // namespace KOVAVSFDataGridLib
