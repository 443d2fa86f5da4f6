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

// Edits of the current record of a session's result: saves or discards them, or keeps them over what another
// user has saved. Its functions keep the session alive while the host may do anything.
class EditedRecord
{
public:
    explicit EditedRecord(Session &session);

    // Commits the value being typed to the record. Returns false if it doesn't fit, after a message to the
    // user, or if the host has replaced the result.
    bool commitEdit();
    // The same for all changes of the record, which are then saved to the database, so that the record can be
    // left.
    bool save();
    // The same before the result is closed: if the changes can't be saved, the user decides what to do with
    // them. Returns false if he wants to stay.
    bool leaveResult();
    // The same for a control that is being destroyed, which can't ask or report anything. Returns why the
    // changes could not be saved, as a text for the user.
    std::optional<QString> saveSilently();
    // The same for a record that is known to have changes. Throws ADODB::Error if the database or the host
    // refuses.
    void saveChanges();
    // Deletes the current record. Throws ADODB::Error if the database refuses. Shows nothing.
    void remove();
    // Discards its changes.
    void cancel();
    // Reads the record again and shows what others have changed. The user's own changes are kept, still
    // unsaved; a message lists the fields that both have changed.
    void showNewValues();

    // Whether it has changes that are not yet saved.
    bool hasUnsavedChanges() const;
    // Whether the record has no changes at all. There must be a result.
    bool isEmpty() const;
    // Whether the host does not allow records to be added, changed or deleted.
    bool isReadOnly() const { return m_isReadOnly; }
    void setReadOnly(bool on);
    // Why none of that is possible now, as a text for the user: because of the host, or because the result
    // can't be written. Empty if it is possible.
    QString whyNotWritten() const;
    // The same for adding records only: rows can be deleted even if none of their fields can be written.
    QString whyNotAdded() const;
    // Whether records can be added to the open result.
    bool canAddRecords() const;

private:
    struct Failure
    {
        QString text; // for the user to read
        bool isChangedByOthers = false;
        bool isPerhapsSaved = false; // a new record after an attempt with an unknown outcome
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
