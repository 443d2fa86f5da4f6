#pragma once

#include "session/Session.h"

#include <optional>

namespace KOVAVSFDataGridLib {

// Opens a statement beside what a session shows, while the user waits and can cancel.
class StatementReader
{
public:
    enum class Outcome {
        Done,
        Failed,
        Cancelled, // by the user
        Overtaken, // something else was put in the result's place meanwhile
    };
    struct Reading
    {
        Outcome outcome = Outcome::Failed;
        std::optional<ResultSet::Opened> opened = {};
    };

    StatementReader(Session &session, Session::Opener opener);

    // For the database type of the session's history. Nothing when the statement is empty or can't be read,
    // which the user has been shown, or when something else was put in the result's place meanwhile. If
    // `refusal` is given, the database's words go there and not to the user.
    std::optional<ResultSet::Opened> read(const QString &statement, QString *refusal = nullptr);
    // The same for a type of the caller's, with what became of it.
    Reading read(const QString &statement, AllDBType dbType, QString *refusal = nullptr);

    // Whether the user has cancelled the last reading.
    bool isCancelled() const { return m_isCancelled; }
    // Whether the database has refused the last statement itself, and is there to answer others.
    bool isRefused() const { return m_isRefused; }
    // What the user is shown, unless the session's window wants it otherwise.
    void reportCancelled();
    void reportError(const QString &description);

private:
    ResultSet::Opened open(const QString &statement, AllDBType dbType);

    Session &m_session;
    const Session::Opener m_opener;
    bool m_isCancelled = false;
    bool m_isRefused = false;
};

} // namespace KOVAVSFDataGridLib
