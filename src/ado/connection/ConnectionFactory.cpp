#include "ado/ConnectionFactory.h"

#include "ado/Connection.h"
#include "ado/Error.h"
#include "ado/MiddleTier.h"
#include "ado/Recordset.h"
#include "sql/AllDBType.h"

namespace ADODB {

namespace {

class PlainFactory : public ConnectionFactory
{
public:
    void SetThreeTier(bool on) override { m_threeTier = on; }
    bool ThreeTier() const override { return m_threeTier; }
    void SetMiddleTier(const MiddleTier &tier) override { m_middleTier = tier; }
    std::shared_ptr<Connection> newConnection(qint32 dbType) override
    {
        auto connection = std::make_shared<Connection>();
        if (m_threeTier && dbType != KOVAVSFDataGridLib::dbAccess)
            connection->PutMiddleTier(m_middleTier);
        return connection;
    }
    std::shared_ptr<Recordset> newRecordset(qint32) override { return std::make_shared<Recordset>(); }

private:
    bool m_threeTier = false;
    MiddleTier m_middleTier;
};

std::unique_ptr<ConnectionFactory> &theFactory()
{
    static std::unique_ptr<ConnectionFactory> factory;
    return factory;
}

// An exception of a host's factory becomes a connection error. Anything but Error is also logged.
template<typename Object>
std::shared_ptr<Object> fromFactory(std::shared_ptr<Object> (ConnectionFactory::*create)(qint32),
                                    qint32 dbType)
{
    try {
        return (ConnectionFactory::instance().*create)(dbType);
    } catch (const Error &) {
        throw;
    } catch (const std::exception &error) {
        qWarning("A host's factory failed: %s", error.what());
        throw Error(dbErrFailed, QString::fromUtf8(error.what()));
    }
}

} // namespace

ConnectionFactory::~ConnectionFactory() = default;

void ConnectionFactory::SetMiddleTier(const MiddleTier &) {}

ConnectionFactory &ConnectionFactory::instance()
{
    if (!theFactory())
        theFactory() = std::make_unique<PlainFactory>();
    return *theFactory();
}

std::shared_ptr<Connection> ConnectionFactory::connectionFor(qint32 dbType)
{
    return dbType == KOVAVSFDataGridLib::dbAccess ? std::make_shared<Connection>()
                                                  : fromFactory(&ConnectionFactory::newConnection, dbType);
}

std::shared_ptr<Connection> ConnectionFactory::connectionToBuild(qint32 dbType)
{
    return dbType == KOVAVSFDataGridLib::dbOracle ? connectionFor(dbType) : std::make_shared<Connection>();
}

std::shared_ptr<Recordset> ConnectionFactory::recordsetFor(qint32 dbType)
{
    return dbType == KOVAVSFDataGridLib::dbAccess ? std::make_shared<Recordset>()
                                                  : fromFactory(&ConnectionFactory::newRecordset, dbType);
}

void ConnectionFactory::setInstance(std::unique_ptr<ConnectionFactory> factory)
{
    theFactory() = std::move(factory);
}

} // namespace ADODB
