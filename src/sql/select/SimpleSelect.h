#pragma once

#include <QtCore/QString>

#include <vector>

namespace KOVAVSFDataGridLib {

class SqlScanner;

// What a statement's text says about writing its result back. That is possible only for a SELECT of single
// rows from one named table, because then each row of the result is one row of the table. Only the database
// knows whether the name is a table.
struct SimpleSelect
{
    // One entry of the SELECT list.
    struct Item
    {
        bool all = false; // * or T.*
        QString column;   // the name of a plain column; empty for a computed entry
        // For a computed entry: depends on the time or on chance, so it can differ between two reads.
        bool changesByItself = false;

        bool isComputed() const { return !all && column.isEmpty(); }
    };

    // Why it is not such a SELECT. Everything else is set only if it is one.
    enum class Fault { None, Distinct, Compound, Grouped, NoTable, Join };
    Fault fault = Fault::None;
    QString schema; // empty if not written
    QString table;
    QString alias;     // the statement's name for the table; its own name if there is no alias
    QString tableText; // the table and its alias as written, with quotes
    QString aliasText;
    qsizetype listEnd = 0;   // the end of the SELECT list in the text
    qsizetype sourceEnd = 0; // the end of the table with its alias
    std::vector<Item> items;
    // Certainly every row of the table is a row of the result: no condition, no limit, no aggregate.
    bool isWhole = false;

    static SimpleSelect parse(const SqlScanner &statement);
};

} // namespace KOVAVSFDataGridLib
