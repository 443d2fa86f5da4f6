#pragma once

#include "sql/SqlScanner.h"

#include <vector>

namespace KOVAVSFDataGridLib {

// Indexes [begin, end) of tokens, or of characters in the scanned text.
struct TextRange
{
    qsizetype begin = 0;
    qsizetype end = 0;

    bool isEmpty() const { return begin >= end; }
};

// The clauses of a SELECT, found by its tokens: nothing inside brackets, quotes and comments is a clause. For
// a compound statement, describes the first SELECT, or none if that is in brackets.
struct SelectParts
{
    // One entry of the SELECT list or of ORDER BY.
    struct Item
    {
        TextRange tokens; // all of it
        // Without the alias; for a sort term, without the rest of it. Of a name or a position in a sort,
        // without the brackets and signs around it that engines ignore.
        TextRange value;
        QString alias;       // without quotes; empty if there is none
        bool hasAs = false;  // if false, the alias can be the last word of an expression instead
        bool isStar = false; // * or T.*
        // A name, possibly qualified with dots; the last part is the column's.
        bool isName = false;
        // For a sort term, what must follow another value so that it is sorted in the same way: DESC, for
        // example.
        QString rest = {};
        bool isDescending = false;
    };
    // One source in FROM, with the name that the rest of the statement uses for it.
    struct Source
    {
        QString table; // empty for a subquery and for a function
        QString alias; // without quotes; empty for a subquery without one
        QString writtenAlias;
    };

    bool isSelect = false; // if false, nothing below is set
    TextRange with;        // WITH and its tables
    TextRange listWords;   // DISTINCT, ALL, TOP n
    TextRange list;
    TextRange source; // between FROM and the next clause; empty if there is no FROM
    TextRange where;  // from the word WHERE on
    TextRange group;  // from GROUP BY or HAVING on, including both
    TextRange order;  // from ORDER BY on
    bool isDistinct = false;
    bool isDistinctOn = false; // DISTINCT ON (…); the sort determines which rows it keeps
    bool isTop = false;        // TOP n
    bool isCompound = false;   // UNION and the like
    bool isGrouped = false;    // GROUP BY, HAVING, or an aggregate function in the list or in ORDER BY
    bool isLimited = false;    // LIMIT, OFFSET, FETCH, ROWNUM, and a variable that is assigned in each row
    bool hasWindow = false;    // a window function or a WINDOW clause
    bool hasRows = false;      // a set-returning function in the list
    bool isVersioned = false;  // MySQL runs or skips a part of it, depending on its version
    bool isClosed = false;     // has something that no derived table can have: FOR, INTO, OPTION and the like
    std::vector<Item> items;
    std::vector<Item> sort;
    std::vector<Source> sources;
    // Whether `*` lists the fields of one source after another: each source has a name, and no USING or
    // NATURAL merges two fields into one.
    bool hasPlainSources = true;
    bool isDerivedTable = false; // the only source is a subquery with an alias

    static SelectParts of(const SqlScanner &statement);
    // An entry of the SELECT list, taken to have no alias.
    static Item itemWithoutAlias(const SqlScanner &statement, TextRange tokens);
};

// The text of a range of tokens, as written.
QString textOf(const SqlScanner &statement, TextRange tokens);

// The words among these tokens that a SELECT in brackets can't have. None of them changes a row.
std::vector<qsizetype> firstListWords(const SqlScanner &statement, TextRange tokens);

} // namespace KOVAVSFDataGridLib
