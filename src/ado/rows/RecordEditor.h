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

// The pending edit of a recordset: values that were written to fields but not yet to the database.
class RecordEditor
{
public:
    // `writer` is null for a read-only result; `whyReadOnly` is then the reason.
    RecordEditor(std::unique_ptr<RowWriter> writer, const QString &whyReadOnly);
    ~RecordEditor();

    bool isWritable() const { return m_writer != nullptr; }
    EditModeEnum mode() const { return m_mode; }
    // Empty if the result can be written.
    QString whyReadOnly() const { return m_writer ? QString() : m_whyReadOnly; }
    bool isEmpty() const { return m_values.empty(); }
    // The pending value of a column, or null if there is none.
    const QVariant *pending(int column) const;

    void beginNew(); // throws 3251
    // `snapshot` has the field's name and type. Throws 3251 or 3421, and then no edit begins.
    void set(int column, const QVariant &value, const Snapshot &snapshot);
    void cancel();

    // Both end the edit on success and keep it if they throw. After dbErrInDoubt, the next call finds out
    // whether the record was saved. If that can't be determined for a new record, saveNew() throws
    // dbErrPerhapsSaved until forgetAttempt() is called.
    void saveNew(Snapshot &snapshot);
    void saveChanges(Snapshot &snapshot, qint64 record);
    void forgetAttempt() { m_sent.reset(); }
    // Deletes a record, even with a pending edit. After dbErrInDoubt, the next call finds out whether it was
    // deleted.
    void remove(Snapshot &snapshot, qint64 record);
    // Find out whether the previous attempt, which ended with dbErrInDoubt, has succeeded, without making
    // another one. If so, they show its result and return true. False if no outcome is unknown. They throw
    // the errors of reading; findNew() also throws dbErrPerhapsSaved.
    bool findNew(Snapshot &snapshot);
    bool findChanges(Snapshot &snapshot, qint64 record);
    bool findRemoval(Snapshot &snapshot, qint64 record);
    // Reads the record again and returns it as the only row. Throws 3251, and dbErrDeletedRow if it was
    // deleted.
    RowStore readAgain(const Snapshot &snapshot, qint64 record) const;

private:
    RowWriter &writer() const;
    std::vector<Change> changes() const;
    void send(int columns, const std::function<void(RowStore &)> &attempt);
    void update(const Snapshot &snapshot, qint64 record);
    bool findSaved(const Snapshot &snapshot, qint64 record);
    bool findSavedNew(const Snapshot &snapshot);
    // Adds the field's name to an error about a missing value.
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
        std::map<int, QVariant> values; // as sent
        RowStore row;                   // as it was to be saved; no row if that is unknown
    };
    // The new or changed record that was saved, or may have been, and isn't shown yet.
    std::unique_ptr<Sent> m_sent;
    qint64 m_removed = 0; // the record that may have been deleted; 0 for none
};

} // namespace ADODB
