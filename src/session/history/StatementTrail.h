#pragma once

#include "query/clsFilterManagement.h"

#include <QtCore/QDateTime>
#include <QtCore/QHash>

#include <memory>
#include <optional>
#include <vector>

namespace KOVAVSFDataGridLib {

// The trail of a user's steps through the statements, in addition to their history: how many records each has
// shown, and the statements left by going back, for going forward.
class StatementTrail
{
public:
    struct Note
    {
        qint64 records = 0;
        QDateTime time;         // when it was last shown
        QList<bool> partFields; // of the catalogue, as marked when it was first shown
    };

    // Belongs to the history of this filter manager only.
    explicit StatementTrail(std::weak_ptr<clsFilterManagement> manager) : m_manager(std::move(manager)) {}
    bool isOf(const std::shared_ptr<clsFilterManagement> &manager) const
    {
        return m_manager.lock() == manager;
    }

    // Records how many records the latest entry shows, unless that is already known.
    void addNote(const colShowSQLSentences &history, qint64 records);
    // The same, but replaces the number; the earlier part fields are kept.
    void replaceNote(const colShowSQLSentences &history, qint64 records);
    std::optional<Note> noteOf(const clsShowSQLSentence &entry) const;

    // The entries ahead of the latest one, the next one first; empty after another one was added.
    const std::vector<clsShowSQLSentence> &ahead(const colShowSQLSentences &history) const;
    // Sets the entries ahead of the latest one.
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
    QString m_key; // of the entry that they follow
    QString m_statement;
};

} // namespace KOVAVSFDataGridLib
