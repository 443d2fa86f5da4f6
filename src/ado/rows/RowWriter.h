#pragma once

#include "ado/values/RawValue.h"

#include <QtCore/QVariant>

#include <vector>

namespace ADODB {

class RowStore;

// One value for one column of a statement, as FieldValue::toStorage() gives it.
struct Change
{
    int column;
    QVariant value;
};

// Writes rows of one result back to the one table they come from. What a write promises, on every engine:
//
// - The row written is the row that was shown. It is found by its key and read again before anything is
//   written, under a lock where the engine has one. It must be one row, and each of its cells must be what
//   the caller passes in `row`: the shown columns and the hidden ones, texts and binary values to their last
//   byte. Only a computed column that changes by itself (the time, a random number) is not compared.
// - A table without a key is identified by all its columns, also those that the result does not show.
// - Reading and writing are one transaction. A table without transactions is written by a single statement
//   that compares the row once more and can change one row only; without a key it is not written at all, and
//   Statement::whyReadOnly() says so.
//
// Each write has one of three outcomes:
//
// - It returns: the row is saved, and `stored` receives it as the database now has it.
// - It throws: nothing is saved. dbErrConcurrency means that the row is not the one shown any more; read()
//   then gives the row that is there.
// - It throws dbErrInDoubt: the connection was lost while the database was saving, so nobody knows whether it
//   did. Only reading the row again can tell. insert() and update() then leave the row in `stored` as the
//   database was to save it, or no row where that isn't known.
class RowWriter
{
public:
    virtual ~RowWriter();
    // Whether a column can be given a value.
    virtual bool isWritable(int column) const = 0;
    // Whether the database is known to keep the time zone of a moment there.
    virtual bool keepsZones(int column) const;
    // Whether a text with U+0000 in it is stored and read whole.
    virtual bool keepsNulCharacters() const;
    virtual void insert(const std::vector<Change> &changes, RowStore &stored) = 0;
    // The same after an insert() that left `before` with dbErrInDoubt and can still be under way: the new row
    // gets the same key where the engine allows that, so that the database can't save both.
    virtual void insertAgain(const std::vector<Change> &changes, const std::vector<RawValue> &before,
                             RowStore &stored);
    virtual void update(const std::vector<RawValue> &row, const std::vector<Change> &changes,
                        RowStore &stored) = 0;
    virtual void remove(const std::vector<RawValue> &row) = 0;
    // Appends the row that has the key of `row` now, whatever else has changed in it. False when there is
    // none.
    virtual bool read(const std::vector<RawValue> &row, RowStore &now) = 0;
};

} // namespace ADODB
