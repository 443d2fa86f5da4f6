#pragma once

#include "ado/FieldInfo.h"
#include "ado/connection/TableColumn.h"
#include "ado/rows/RowWriter.h"
#include "sql/SqlQuoting.h"

#include <QtCore/QStringList>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

// What a database engine must implement to be used by Connection and Recordset. Each engine has its own
// folder here and is listed in CMakeLists.txt. Every function can throw Error.
namespace ADODB {

using KOVAVSFDataGridLib::SqlQuoting;

class ConnectionString;
class RowStore;

// A statement, checked to return rows and change nothing. Must not be used after its session is closed.
class Statement
{
public:
    virtual ~Statement();
    // The columns to show. A type that only the values can tell is final once fetch() has returned.
    virtual const std::vector<FieldInfo> &fields() const = 0;
    // All columns: those of fields(), then the hidden ones that the writer uses as a key.
    virtual int columns() const = 0;
    // Runs the statement and appends all its rows. Calls `shouldContinue` at least every 20 ms with the
    // number of rows read; throws dbErrCancelled if it returns false. `rows` is not valid during the call.
    virtual void fetch(RowStore &rows, const std::function<bool(qint64 rowsRead)> &shouldContinue) = 0;
    // For use inside `shouldContinue`: the complete rows that fetch() has read so far, or nearly all of them.
    // Null if there are none yet, or if the provider does not support it.
    virtual std::shared_ptr<const RowStore> rowsSoFar() const { return nullptr; }
    // For use inside `shouldContinue`: about how many rows fetch() will read, if the engine knows it without
    // reading them. Takes no time: the provider asks the engine only when fetch() takes long, and there is no
    // value until it has answered.
    virtual std::optional<qint64> estimatedRows() const { return std::nullopt; }
    // Null if rows can't be written back; whyReadOnly() then returns the reason.
    virtual std::unique_ptr<RowWriter> releaseWriter() = 0;
    virtual QString whyReadOnly() const = 0;
};

enum class Access { ReadOnly, ReadWrite };

// One open connection. Statements and writers share ownership of it, so it lives as long as they do.
class Session
{
public:
    virtual ~Session();
    // The name that the driver reports; see Connection::EngineName.
    virtual QString engineName() const { return {}; }
    // How a MySQL server reads texts and names in this session. Other engines don't use it.
    virtual SqlQuoting quoting() const { return {}; }
    // Checks `sql` before running any of it and refuses anything but one statement that returns rows and
    // changes nothing. With ReadWrite, it also prepares for writing rows back, if the statement allows that.
    // Calls `shouldContinue` as Statement::fetch() does while it waits for a server.
    virtual std::unique_ptr<Statement> prepare(const QString &sql, Access access,
                                               const std::function<bool()> &shouldContinue) = 0;
    // The column of another table that this one refers to by a foreign key; empty if there is none or the
    // engine can't tell. Calls `shouldContinue` as prepare() does.
    virtual std::optional<TableColumn> reference(const TableColumn & /*column*/,
                                                 const std::function<bool()> & /*shouldContinue*/)
    {
        return std::nullopt;
    }
    // The columns of a table that the engine gives a value where a new record has none. `table` names no
    // column. Asks whether to go on as prepare() does.
    virtual QStringList filledColumns(const TableColumn & /*table*/,
                                      const std::function<bool()> & /*shouldContinue*/)
    {
        return {};
    }
    // The statement that reads the whole table.
    virtual QString tableStatement(const QString &table) const = 0;
    // Whether another session opened in the same way sees the same data. False if the database exists only in
    // its connection, or if this is unknown.
    virtual bool isRepeatable() const { return false; }
    // Ends the connection. Writers that still hold the session throw from then on.
    virtual void close() = 0;
    // False after close() or after the connection to the server was lost; the session is then unusable.
    virtual bool isOpen() const { return true; }
};

// How the connection builder presents a provider whose databases are files.
struct FileChoice
{
    QString caption;         // "SQLite database file"
    QString filter;          // for the file dialog: "SQLite databases (*.db)"
    QString passwordKeyword; // in a connection string; empty if files have no password
};

class Provider
{
public:
    virtual ~Provider();
    // The name in a connection string, as messages list it.
    virtual QString name() const = 0;
    // Whether a connection string is meant for this provider: by its Provider keyword or, without one, by its
    // other keywords.
    virtual bool claims(const ConnectionString &connection) const = 0;
    virtual std::shared_ptr<Session> open(const ConnectionString &connection) const = 0;
    // Empty if a database of this provider is not a file named by `Data Source`.
    virtual std::optional<FileChoice> fileChoice() const { return std::nullopt; }
};

// All providers, in the order in which their claims() is called.
const std::vector<const Provider *> &providers();

// The first provider that claims the connection string; null if there is none.
const Provider *providerOf(const ConnectionString &connection);

// Opens a session for the connection string. Throws 3706 if no provider claims it.
std::shared_ptr<Session> openSession(const ConnectionString &connection);

// Registers a provider for the lifetime of this object. It takes precedence over the others. The provider
// must outlive this object.
class ProviderRegistration
{
public:
    explicit ProviderRegistration(const Provider &provider);
    ~ProviderRegistration();
    Q_DISABLE_COPY_MOVE(ProviderRegistration)

private:
    const Provider *m_provider;
};

} // namespace ADODB
