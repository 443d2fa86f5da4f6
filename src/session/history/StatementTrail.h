#pragma once

#include "query/clsFilterManagement.h"

#include <QtCore/QDateTime>
#include <QtCore/QHash>

#include <memory>
#include <optional>
#include <vector>

namespace KOVAVSFDataGridLib {

// What a user's way through the statements leaves beside their history: how many records each has shown, and
// those that a step back has left, for a step forward.
class StatementTrail
{
public:
    struct Note
    {
        qint64 records = 0;
        QDateTime time;         // when it was last shown
        QList<bool> partFields; // of the catalogue, as they were marked when it was first shown
    };

    // Of the history of this filter manager, and of no other one.
    explicit StatementTrail(std::weak_ptr<clsFilterManagement> manager) : m_manager(std::move(manager)) {}
    bool isOf(const std::shared_ptr<clsFilterManagement> &manager) const
    {
        return m_manager.lock() == manager;
    }

    // Notes that the latest entry shows so many records, unless it has a note.
    void addNote(const colShowSQLSentences &history, qint64 records);
    // The same with a new note; the part fields of the former one stay.
    void replaceNote(const colShowSQLSentences &history, qint64 records);
    std::optional<Note> noteOf(const clsShowSQLSentence &entry) const;

    // The entries ahead of the latest one, the next one first; none once another one was added.
    const std::vector<clsShowSQLSentence> &ahead(const colShowSQLSentences &history) const;
    // The latest entry has these ahead of it.
    void setAhead(const colShowSQLSentences &history, std::vector<clsShowSQLSentence> entries);

private:
    struct Noted
    {
        QString statement;
        Note note;
    };

    void forgetOthers(const colShowSQLSentences &history);

    const std::weak_ptr<clsFilterManagement> m_manager;
    QHash<QString, Noted> m_notes; // by the entries' keys
    std::vector<clsShowSQLSentence> m_ahead;
    QString m_key; // of the entry that they are ahead of
    QString m_statement;
};

} // namespace KOVAVSFDataGridLib
