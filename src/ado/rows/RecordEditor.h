#pragma once

#include "ado/Enums.h"
#include "ado/rows/RowStore.h"

#include <QtCore/QVariant>

#include <map>
#include <memory>
#include <vector>

namespace ADODB {

class Error;
class RowWriter;
class Snapshot;
struct Change;

// The pending edit of a recordset: the values that were written to fields and not yet to the database.
class RecordEditor
{
public:
    // `writer` is null for a result that can't be written; `whyReadOnly` then says why.
    RecordEditor(std::unique_ptr<RowWriter> writer, const QString &whyReadOnly);
    ~RecordEditor();

    bool isWritable() const { return m_writer != nullptr; }
    EditModeEnum mode() const { return m_mode; }
    // Empty for a result that can be written.
    QString whyReadOnly() const { return m_writer ? QString() : m_whyReadOnly; }
    bool isEmpty() const { return m_values.empty(); }
    // The pending value of a column, null when it has none.
    const QVariant *pending(int column) const;

    void beginNew(); // throws 3251
    // `snapshot` tells the field's name and type. Throws 3251 and 3421 and then begins nothing.
    void set(int column, const QVariant &value, const Snapshot &snapshot);
    void cancel();

    // Both end the edit when they succeed and keep it when they throw. After dbErrInDoubt, the next attempt
    // finds out whether it was saved. Where that can't be told of a new record, saveNew() throws
    // dbErrPerhapsSaved until that attempt is forgotten.
    void saveNew(Snapshot &snapshot);
    void saveChanges(Snapshot &snapshot, qint64 record);
    void forgetAttempt() { m_sent.reset(); }
    // Deletes a record, whatever is pending.
    void remove(Snapshot &snapshot, qint64 record);
    // The record as the database has it now, the only row of the answer. Throws 3251, and dbErrDeletedRow
    // when it is gone.
    RowStore readAgain(const Snapshot &snapshot, qint64 record) const;

private:
    RowWriter &writer() const;
    std::vector<Change> changes() const;
    RowStore update(const Snapshot &snapshot, qint64 record) const;
    bool holdsChanges(const Snapshot &row) const;
    // The error, with the name of the field where the database refused one without a value.
    Error named(const Error &error, const Snapshot &snapshot) const;
    bool findSaved();
    void insert(int columns);
    void changeSaved();

    std::unique_ptr<RowWriter> m_writer;
    QString m_whyReadOnly;
    EditModeEnum m_mode = adEditNone;
    std::map<int, QVariant> m_values;
    bool m_isInDoubt = false; // the changes may have been saved

    struct NewRecord
    {
        std::map<int, QVariant> values; // as they were sent
        RowStore row;                   // as it was to be saved; none where that isn't known
    };
    // It was saved, or may have been, and isn't shown yet.
    std::unique_ptr<NewRecord> m_sent;
};

} // namespace ADODB
