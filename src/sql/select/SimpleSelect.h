#pragma once

#include <QtCore/QString>

#include <vector>

namespace KOVAVSFDataGridLib {

class SqlScanner;

// What a statement's text says about writing its result back: only a SELECT of single rows of one named table
// can be, since each of its rows then is one row there. Whether that name is a table is for the database to
// say.
struct SimpleSelect
{
    // One entry of the select list.
    struct Item
    {
        bool all = false; // * or T.*
        QString column;   // the name of a plain column; empty for anything that is computed
        // For what is computed: from the time or by chance, so no two readings need to agree.
        bool changesByItself = false;
    };

    // Why it is no such SELECT, if it isn't. The rest is set only when it is one.
    enum class Fault { None, Distinct, Compound, Grouped, NoTable, Join };
    Fault fault = Fault::None;
    QString schema; // empty unless written
    QString table;
    QString alias;     // as which the statement knows the table; its own name when there is no alias
    QString tableText; // the table and its alias as they are written, with their quotes
    QString aliasText;
    qsizetype listEnd = 0;   // where the select list ends in the text
    qsizetype sourceEnd = 0; // where the table with its alias ends
    std::vector<Item> items;

    static SimpleSelect parse(const SqlScanner &statement);
};

} // namespace KOVAVSFDataGridLib
