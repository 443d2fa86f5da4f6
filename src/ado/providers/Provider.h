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

// What a database engine has to offer to be reached through Connection and Recordset. Each engine has its own
// folder beside this file and is listed in CMakeLists.txt there. Everything throws Error.
namespace ADODB {

using KOVAVSFDataGridLib::SqlQuoting;

class ConnectionString;
class RowStore;

// A statement that was checked to return rows and to change nothing. It must not outlive its session's close.
class Statement
{
public:
    virtual ~Statement();
    // The columns to show. Where a type is only known from the values, it is final once fetch() has returned.
    virtual const std::vector<FieldInfo> &fields() const = 0;
    // All columns: those of fields(), then hidden ones that serve the writer as key.
    virtual int columns() const = 0;
    // Runs the statement and appends all its rows. Asks at least every 20 ms whether to go on, with the
    // number of rows read so far; throws dbErrCancelled when not. `rows` is without meaning while it asks.
    virtual void fetch(RowStore &rows, const std::function<bool(qint64 rowsRead)> &shouldContinue) = 0;
    // The whole rows that fetch() has read, while it asks: all or nearly all of them. Null when there are
    // none yet, or the provider can't tell.
    virtual std::shared_ptr<const RowStore> rowsSoFar() const { return nullptr; }
    // Null when rows can't be written back; whyReadOnly() then says why.
    virtual std::unique_ptr<RowWriter> releaseWriter() = 0;
    virtual QString whyReadOnly() const = 0;
};

enum class Access { ReadOnly, ReadWrite };

// One open connection. Statements and writers share it, so it lives as long as they do.
class Session
{
public:
    virtual ~Session();
    // As its driver names it; see Connection::EngineName.
    virtual QString engineName() const { return {}; }
    // How a MySQL server reads texts and names in this session; nothing to other engines.
    virtual SqlQuoting quoting() const { return {}; }
    // Refuses what is not one statement that returns rows and changes nothing, before running any of it. With
    // ReadWrite the statement is prepared for writing back as far as it allows that. Asks whether to go on as
    // Statement::fetch() does, where it has to wait for a server.
    virtual std::unique_ptr<Statement> prepare(const QString &sql, Access access,
                                               const std::function<bool()> &shouldContinue) = 0;
    // The column of another table that this one refers to by a foreign key; nothing where it refers to none,
    // or the engine can't be asked. Asks whether to go on as prepare() does.
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
    // The statement that reads a whole table.
    virtual QString tableStatement(const QString &table) const = 0;
    // Whether another session that is opened in the same way finds the same data. Not where a database lives
    // in its connection, nor where nobody knows.
    virtual bool isRepeatable() const { return false; }
    // Ends the connection; writers that still hold the session throw from then on.
    virtual void close() = 0;
    // False once it is closed or its server went away; nothing more can be done with it then.
    virtual bool isOpen() const { return true; }
};

// How the connection builder offers a provider whose databases are files.
struct FileChoice
{
    QString caption;         // "SQLite database file"
    QString filter;          // of the file dialog: "SQLite databases (*.db)"
    QString passwordKeyword; // in a connection string; empty where files have no password
};

class Provider
{
public:
    virtual ~Provider();
    // Its name in a connection string, as a message lists it.
    virtual QString name() const = 0;
    // Whether a connection string is meant for it, by its Provider or, where it names none, by what it does
    // name.
    virtual bool claims(const ConnectionString &connection) const = 0;
    virtual std::shared_ptr<Session> open(const ConnectionString &connection) const = 0;
    // Nothing where a database is not a file that `Data Source` names.
    virtual std::optional<FileChoice> fileChoice() const { return std::nullopt; }
};

// All of them, in the order in which they are asked.
const std::vector<const Provider *> &providers();

// The first provider that claims a connection string; null when none does.
const Provider *providerOf(const ConnectionString &connection);

// The session for a connection string. Throws 3706 when no provider claims it.
std::shared_ptr<Session> openSession(const ConnectionString &connection);

// Adds a provider for as long as this object lives; it is asked before the others. The provider must outlive
// it.
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
