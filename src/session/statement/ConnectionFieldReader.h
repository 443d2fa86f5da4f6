#pragma once

#include "query/RecentlyUsed.h"
#include "query/fields/FieldReader.h"

#include <functional>
#include <memory>

namespace ADODB {
class Connection;
class Fields;
} // namespace ADODB

namespace KOVAVSFDataGridLib {

class ResultSet;

// Reads field names and types. Uses the control's own connection if that leads to the same database (a second
// connection to a remote server takes time, and one to a database in memory is another database), otherwise a
// temporary connection. The results for the last used statements are cached until forget().
class ConnectionFieldReader final : public FieldReader
{
public:
    // `result` must outlive the reader.
    explicit ConnectionFieldReader(const ResultSet &result);
    ~ConnectionFieldReader() override;

    bool Open(const QString &connectionString) override;
    std::optional<std::vector<SourceField>> Read(const QString &connectionString,
                                                 const QString &statement) override;

    bool Accepts(const QString &connectionString, const QString &statement) override;

    // Caches the fields of a statement from its open result, so that the database need not be queried.
    void remember(const QString &connectionString, const QString &statement, const ADODB::Fields &fields);
    EngineMode engineOf(const QString &connectionString) override;

    // Why the last reading failed, as a sentence for the user; empty if it succeeded.
    const QString &Failure() const { return m_failure; }

    // Exists while a command runs. After the user has cancelled one reading, all others of the command fail
    // immediately.
    class Command
    {
    public:
        explicit Command(ConnectionFieldReader &reader);
        ~Command();
        Q_DISABLE_COPY_MOVE(Command)

    private:
        ConnectionFieldReader &m_reader;
    };

    // Whether the user has cancelled a reading.
    bool isCancelled() const { return m_isCancelled; }

    // Closes its own connection and clears the cache, because the tables may have changed.
    void forget();

    // More than the statements that commands derive from the one shown and from those shown shortly before.
    static constexpr std::size_t statementsKept = 100;
    // Of how many statements the cache has the fields.
    std::size_t countKnown() const { return m_known.size(); }

private:
    // Throws ADODB::Error.
    std::shared_ptr<ADODB::Connection> connect(const QString &connectionString);
    std::shared_ptr<ADODB::Connection> connectUnlessCancelled(const QString &connectionString);
    // Whether the reading succeeded; if not, stores the reason.
    bool attempt(const std::function<void()> &reading);
    std::optional<std::vector<SourceField>> fromKnown(const QString &connectionString,
                                                      const QString &statement) const;
    QString keyOf(const QString &statement);
    void closeOwn();

    const ResultSet &m_result;
    std::shared_ptr<ADODB::Connection> m_own;
    QString m_ownText;
    QString m_failure;
    bool m_isRefused = false; // the last reading failed because of the statement itself
    int m_commands = 0;
    bool m_isCancelled = false;
    RecentlyUsed<std::pair<QString, QString>, std::vector<SourceField>> m_known{
        statementsKept};                                   // by connection string and key of the statement
    RecentlyUsed<QString, QString> m_keys{statementsKept}; // by statement
    RecentlyUsed<std::pair<QString, QString>, bool> m_accepted{statementsKept};
};

} // namespace KOVAVSFDataGridLib
