#pragma once

#include "ado/Enums.h"
#include "ado/rows/RowStore.h"

#include <QtCore/QVariant>

#include <functional>
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
    // Deletes a record, whatever is pending. After dbErrInDoubt, the next attempt finds out whether it is
    // deleted.
    void remove(Snapshot &snapshot, qint64 record);
    // The same three without an attempt: whether the one before, which ended with dbErrInDoubt, has done what
    // it was to do; it is then shown as by the attempt itself. False where no outcome is open. They throw
    // what reading throws, and the first one dbErrPerhapsSaved too.
    bool findNew(Snapshot &snapshot);
    bool findChanges(Snapshot &snapshot, qint64 record);
    bool findRemoval(Snapshot &snapshot, qint64 record);
    // The record as the database has it now, the only row of the answer. Throws 3251, and dbErrDeletedRow
    // when it is gone.
    RowStore readAgain(const Snapshot &snapshot, qint64 record) const;

private:
    RowWriter &writer() const;
    std::vector<Change> changes() const;
    void send(int columns, const std::function<void(RowStore &)> &attempt);
    void update(const Snapshot &snapshot, qint64 record);
    bool findSaved(const Snapshot &snapshot, qint64 record);
    bool findSavedNew();
    // The error, with the name of the field where the database refused one without a value.
    Error named(const Error &error, const Snapshot &snapshot) const;
    void insert(int columns);
    void changeSaved();
    void showNew(Snapshot &snapshot);
    void showChanges(Snapshot &snapshot, qint64 record);
    void showRemoval(Snapshot &snapshot, qint64 record);

    std::unique_ptr<RowWriter> m_writer;
    QString m_whyReadOnly;
    EditModeEnum m_mode = adEditNone;
    std::map<int, QVariant> m_values;

    struct Sent
    {
        std::map<int, QVariant> values; // as they were sent
        RowStore row;                   // as it was to be saved; none where that isn't known
    };
    // What was saved, or may have been, and isn't shown yet: the new record, or the changed one.
    std::unique_ptr<Sent> m_sent;
    qint64 m_removed = 0; // the record that may have been deleted; 0 for none
};

} // namespace ADODB
