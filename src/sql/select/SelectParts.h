#pragma once

#include "sql/SqlScanner.h"

#include <vector>

namespace KOVAVSFDataGridLib {

// Positions [begin, end) of tokens, or of characters in the scanned text.
struct TextRange
{
    qsizetype begin = 0;
    qsizetype end = 0;

    bool isEmpty() const { return begin >= end; }
};

// The clauses of a SELECT, found by its tokens: what brackets, quotes and comments hold is no clause. Of a
// compound statement it describes the first SELECT, or none of them where that is in brackets.
struct SelectParts
{
    // One entry of the select list or of the sort.
    struct Item
    {
        TextRange tokens;    // all of it
        TextRange value;     // without the alias; of a sort term without ASC, DESC and what else follows
        QString alias;       // without quotes; empty when there is none
        bool hasAs = false;  // else the alias is only likely: it can be the expression's last word
        bool isStar = false; // * or T.*
        // A name, or several with dots between them; the last one is the column's.
        bool isName = false;
    };
    // One of what FROM selects from, with the name by which the rest of the statement knows it.
    struct Source
    {
        QString table; // empty for a SELECT in brackets and for a function
        QString alias; // without quotes; empty for a SELECT that has none
        QString writtenAlias;
    };

    bool isSelect = false; // else nothing below is set
    TextRange with;        // WITH and its tables
    TextRange listWords;   // DISTINCT, ALL, TOP n
    TextRange list;
    TextRange source; // between FROM and the next clause; empty without FROM
    TextRange where;  // from the word WHERE on
    TextRange group;  // from GROUP BY or HAVING on, with both
    TextRange order;  // from ORDER BY on
    bool isDistinct = false;
    bool isDistinctOn = false; // DISTINCT ON (…), whose sort decides which rows it leaves
    bool isTop = false;        // TOP n
    bool isCompound = false;   // UNION and the like
    bool isGrouped = false;    // GROUP BY, HAVING, or an aggregate function in the list or the sort
    bool isLimited = false;    // LIMIT, OFFSET, FETCH, ROWNUM
    bool hasWindow = false;    // a window function or a WINDOW clause
    bool hasRows = false;      // a function in the list that gives several rows
    bool isVersioned = false;  // MySQL runs a part of it, or skips that, by its version
    bool isClosed = false;     // has what no derived table can hold: FOR, INTO, OPTION and the like
    std::vector<Item> items;
    std::vector<Item> sort;
    std::vector<Source> sources;
    // Whether `*` gives the fields of one source after the other: each has a name, and no USING or NATURAL
    // makes one field of two.
    bool hasPlainSources = true;
    bool isDerivedTable = false; // the source is one SELECT in brackets with its alias

    static SelectParts of(const SqlScanner &statement);
    // An entry of the select list that has no alias.
    static Item itemWithoutAlias(const SqlScanner &statement, TextRange tokens);
};

// The text of a range of tokens as it is written.
QString textOf(const SqlScanner &statement, TextRange tokens);

// The words among these tokens that a SELECT in brackets can't have. None of them changes a row.
std::vector<qsizetype> firstListWords(const SqlScanner &statement, TextRange tokens);

} // namespace KOVAVSFDataGridLib
