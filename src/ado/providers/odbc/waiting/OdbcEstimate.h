#pragma once

#include <QtCore/QElapsedTimer>
#include <QtCore/QString>

#include <memory>
#include <optional>

namespace ADODB {

class OdbcPool;

// About how many rows a query returns, as the server estimates it. It is asked once, in a session and a
// thread of its own, and only if the query has run for a second already: a shorter one isn't worth a session.
// Nothing waits for the answer.
class OdbcEstimate
{
public:
    // The time counts from here. `statement` is one that refuseUnlessQuery() accepted. A null pool can't be
    // asked.
    OdbcEstimate(std::shared_ptr<OdbcPool> pool, QString statement);
    // Stops the question.
    ~OdbcEstimate();
    Q_DISABLE_COPY_MOVE(OdbcEstimate)

    // Must be called repeatedly, because it asks when it is time. No value before the answer, or if the
    // server can't tell.
    std::optional<qint64> rows();

private:
    struct Question;

    void ask();

    std::shared_ptr<OdbcPool> m_pool; // until the server is asked
    const QString m_statement;
    QElapsedTimer m_sinceBegin;
    std::shared_ptr<Question> m_question; // shared with the thread
};

} // namespace ADODB
