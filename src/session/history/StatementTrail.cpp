#include "session/history/StatementTrail.h"

#include <algorithm>

namespace KOVAVSFDataGridLib {

void StatementTrail::addNote(const colShowSQLSentences &history, qint64 records)
{
    const clsShowSQLSentence *const latest = history.Item(history.Count());
    if (latest && !noteOf(*latest))
        replaceNote(history, records);
}

void StatementTrail::replaceNote(const colShowSQLSentences &history, qint64 records)
{
    const clsShowSQLSentence *const latest = history.Item(history.Count());
    if (!latest)
        return;
    forgetOthers(history);
    const std::optional<Note> former = noteOf(*latest);
    m_notes[latest->SQLKey] = {
        latest->ShowSQL,
        {records, QDateTime::currentDateTime(), former ? former->partFields : history.PartFields()}};
}

void StatementTrail::forgetOthers(const colShowSQLSentences &history)
{
    const std::vector<clsShowSQLSentence> &reachable = ahead(history);
    m_notes.removeIf([&](const auto &noted) {
        return !history.Item(noted.key()) &&
               std::ranges::find(reachable, noted.key(), &clsShowSQLSentence::SQLKey) == reachable.end();
    });
}

std::optional<StatementTrail::Note> StatementTrail::noteOf(const clsShowSQLSentence &entry) const
{
    const auto found = m_notes.constFind(entry.SQLKey);
    if (found == m_notes.cend() || found->statement != entry.ShowSQL)
        return std::nullopt;
    return found->note;
}

const std::vector<clsShowSQLSentence> &StatementTrail::ahead(const colShowSQLSentences &history) const
{
    static const std::vector<clsShowSQLSentence> none;
    const clsShowSQLSentence *const latest = history.Item(history.Count());
    return latest && latest->SQLKey == m_key && latest->ShowSQL == m_statement ? m_ahead : none;
}

void StatementTrail::setAhead(const colShowSQLSentences &history, std::vector<clsShowSQLSentence> entries)
{
    const clsShowSQLSentence *const latest = history.Item(history.Count());
    m_ahead = std::move(entries);
    m_key = latest ? latest->SQLKey : QString();
    m_statement = latest ? latest->ShowSQL : QString();
}

} // namespace KOVAVSFDataGridLib
