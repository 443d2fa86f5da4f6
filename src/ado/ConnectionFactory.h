#pragma once

#include "../KovaExport.h"

#include <QtCore/QString>

#include <memory>

namespace ADODB {

class Connection;
struct MiddleTier;
class Recordset;

// Creates the connections and recordsets of a process. A host can install its own factory to connect in
// another way.
class KOVA_EXPORT ConnectionFactory
{
public:
    virtual ~ConnectionFactory();

    // Whether connections go to a middle tier instead of the database.
    virtual void SetThreeTier(bool on) = 0;
    virtual bool ThreeTier() const = 0;
    // The middle tier named in the configuration. It is used only while ThreeTier is on. The built-in factory
    // creates connections that go through it, except for Access. By default this does nothing.
    virtual void SetMiddleTier(const MiddleTier &tier);
    // New, closed objects for a database type (1 Access, 2 Oracle, 3 SQL Server). Never null.
    virtual std::shared_ptr<Connection> newConnection(qint32 dbType) = 0;
    virtual std::shared_ptr<Recordset> newRecordset(qint32 dbType) = 0;

    // New, closed objects for a database type: plain ones for Access, whose files are on this computer, and
    // the factory's for all others. Never null. They throw Error, also when a host's factory throws anything
    // else.
    static std::shared_ptr<Connection> connectionFor(qint32 dbType);
    static std::shared_ptr<Recordset> recordsetFor(qint32 dbType);
    // Like connectionFor(), for a connection that a user builds: uses the factory for Oracle only.
    static std::shared_ptr<Connection> connectionToBuild(qint32 dbType);

    // The factory of this process. The built-in one is created on first use.
    static ConnectionFactory &instance();
    // Replaces it. Null releases it, and the next use creates the built-in one again.
    static void setInstance(std::unique_ptr<ConnectionFactory> factory);
};

} // namespace ADODB
