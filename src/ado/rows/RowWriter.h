#pragma once

#include "ado/values/RawValue.h"

#include <QtCore/QVariant>

#include <vector>

namespace ADODB {

class RowStore;

// One value for one column of a statement, as returned by FieldValue::toStorage().
struct Change
{
    int column;
    QVariant value;
};

// Writes rows of one result back to the one table they come from. What a write guarantees, on every engine:
//
// - The row written is the one that was shown. It is found by its key and read again before anything is
//   written, under a lock if the engine has one. There must be exactly one row, and each of its cells must be
//   what the caller passes in `row`, shown columns and hidden ones, texts and binary values to the last byte.
//   Only a computed column that changes by itself (the time, a random number) is not compared.
// - A table without a key is identified by all its columns, including those that the result does not show.
// - Reading and writing are one transaction. A table without transactions is written by a single statement
//   that compares the row again and can change only one row. Without a key, such a table is read-only, and
//   Statement::whyReadOnly() says so.
//
// Each write has one of three outcomes:
//
// - It returns: the row is saved, and `stored` receives it as the database now has it.
// - It throws: nothing is saved. dbErrConcurrency means that the row is no longer the one shown; read() then
//   returns the current row.
// - It throws dbErrInDoubt: the connection was lost while the database was saving, so the outcome is unknown.
//   Only reading the row again can tell. insert() and update() then leave in `stored` the row as the database
//   was to save it, or no row if that is unknown. Of a new row in a table without transactions, it is known
//   only if its key was given; the other values are then in the form in which they were sent.
class RowWriter
{
public:
    virtual ~RowWriter();
    // Whether the column can be written.
    virtual bool isWritable(int column) const = 0;
    // Whether the database is known to store the time zone of a timestamp in this column.
    virtual bool keepsZones(int column) const;
    // Whether a text that contains U+0000 can be written and read completely.
    virtual bool keepsNulCharacters() const;
    virtual void insert(const std::vector<Change> &changes, RowStore &stored) = 0;
    // Repeats an insert() that ended with dbErrInDoubt, left `before` and may still be running. The new row
    // gets the same key if the engine allows that, so that the database can't save both.
    virtual void insertAgain(const std::vector<Change> &changes, const std::vector<RawValue> &before,
                             RowStore &stored);
    virtual void update(const std::vector<RawValue> &row, const std::vector<Change> &changes,
                        RowStore &stored) = 0;
    virtual void remove(const std::vector<RawValue> &row) = 0;
    // Appends the current row that has the key of `row`, whatever else has changed in it. Returns false if
    // there is none.
    virtual bool read(const std::vector<RawValue> &row, RowStore &now) = 0;
};

} // namespace ADODB
