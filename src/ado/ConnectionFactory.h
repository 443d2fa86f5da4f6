#pragma once

#include "../KovaExport.h"

#include <QtCore/QString>

#include <memory>

namespace ADODB {

class Connection;
struct MiddleTier;
class Recordset;

// Hands out the connections and recordsets of a process. A host that reaches its databases another way
// installs a factory of its own.
class KOVA_EXPORT ConnectionFactory
{
public:
    virtual ~ConnectionFactory();

    // Whether connections go to a middle tier rather than to the database itself.
    virtual void SetThreeTier(bool on) = 0;
    virtual bool ThreeTier() const = 0;
    // The middle tier that the configuration names, if it does; only counts while the switch is on. The plain
    // factory hands out connections that lead through it, except for Access. By default nothing is done.
    virtual void SetMiddleTier(const MiddleTier &tier);
    // New, closed objects for a database type (1 Access, 2 Oracle, 3 SQL Server). Never null.
    virtual std::shared_ptr<Connection> newConnection(qint32 dbType) = 0;
    virtual std::shared_ptr<Recordset> newRecordset(qint32 dbType) = 0;

    // What a database type gets: for Access, whose files are on this computer, plain objects; for all others
    // those of the factory. New and closed, never null; throws what a host's factory throws.
    static std::shared_ptr<Connection> connectionFor(qint32 dbType);
    static std::shared_ptr<Recordset> recordsetFor(qint32 dbType);

    // The one of this process; a plain one is made on first use.
    static ConnectionFactory &instance();
    // Replaces it; null releases it, and the next use makes a plain one again.
    static void setInstance(std::unique_ptr<ConnectionFactory> factory);
};

} // namespace ADODB
