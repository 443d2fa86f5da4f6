#pragma once

#include <QtCore/QString>

#include <functional>
#include <optional>

namespace ADODB {
class Error;
class Recordset;
} // namespace ADODB

namespace KOVAVSFDataGridLib {

class Session;

// The current record of a session's result as far as it is written into: its changes are saved, forgotten, or
// kept over what another user wrote. Its functions hold the session while the host may do anything.
class EditedRecord
{
public:
    explicit EditedRecord(Session &session);

    // Takes the value that is being typed into the record. False when it doesn't fit, which the user has been
    // shown, or when the host has put something else in the result's place.
    bool commitEdit();
    // The same for all that was written into the record and its way into the database, so that it can be
    // left.
    bool save();
    // The same when the result is about to go: a user whose changes can't be saved chooses what becomes of
    // them. False when he stays.
    bool leaveResult();
    // The same for a control that is being destroyed, which can neither ask nor report. Answers why the
    // changes could not be saved, for the user to read.
    std::optional<QString> saveSilently();
    // The same for a record that is known to be changed. Throws ADODB::Error when the database or the host
    // refuses.
    void saveChanges();
    // Deletes the current record. Throws ADODB::Error when the database refuses. Shows nothing.
    void remove();
    // Forgets what was written into it.
    void cancel();
    // Reads it again and shows what somebody else has written. What the user wrote into it stays and is still
    // not saved; he is shown where both changed the same field.
    void showNewValues();

    // Whether something was written into it that is not saved yet.
    bool hasUnsavedChanges() const;
    // Whether nobody wrote anything into it. There must be a result.
    bool isEmpty() const;
    // Whether the host lets records be neither added, changed nor deleted.
    bool isReadOnly() const { return m_isReadOnly; }
    void setReadOnly(bool on);
    // Why that can't be done to what is shown now, for the user to read: because the host wants it, or
    // because the result can't be written. Empty when it can.
    QString whyNotWritten() const;
    // The same for adding a record alone: rows can be deleted even where none of their fields can be written.
    QString whyNotAdded() const;
    // Whether records can be added to the open result.
    bool canAddRecords() const;

private:
    struct Failure
    {
        QString text; // for the user to read
        bool isChangedByOthers = false;
        bool isPerhapsSaved = false; // a new record, by an attempt whose outcome nobody knows
    };

    void change(const std::function<void(ADODB::Recordset &)> &attempt, const QString &isDone,
                const QString &isNotDone);
    static Failure failureOf(const ADODB::Error &error);
    std::optional<Failure> trySave();
    void cancelChanges();

    Session &m_session;
    bool m_isReadOnly = false;
};

} // namespace KOVAVSFDataGridLib
