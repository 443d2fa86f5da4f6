#pragma once

#include "session/Session.h"

#include <optional>

namespace KOVAVSFDataGridLib {

// Opens a statement without changing what is shown, while the user waits and can cancel.
class StatementReader
{
public:
    enum class Outcome {
        Done,
        Failed,
        Cancelled, // by the user
        Overtaken, // the result was replaced meanwhile
    };
    struct Reading
    {
        Outcome outcome = Outcome::Failed;
        std::optional<ResultSet::Opened> opened = {};
    };

    StatementReader(Session &session, Session::Opener opener);

    // Uses the database type of the session's history. No value if the statement is empty or can't be read,
    // after a message to the user, or if the result was replaced meanwhile. If `refusal` is given, the
    // database's message is stored there instead of being shown.
    std::optional<ResultSet::Opened> read(const QString &statement, QString *refusal = nullptr);
    // The same for the given type; also returns the outcome.
    Reading read(const QString &statement, AllDBType dbType, QString *refusal = nullptr);

    // Whether the user has cancelled the last reading.
    bool isCancelled() const { return m_isCancelled; }
    // Whether the database has refused the last statement itself, and is there to answer others.
    bool isRefused() const { return m_isRefused; }
    // Tells the user, unless the session's window has another way.
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
