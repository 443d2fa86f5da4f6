#include "ado/ConnectionFactory.h"

#include "ado/Connection.h"
#include "ado/Recordset.h"

namespace ADODB {

namespace {

class PlainFactory : public ConnectionFactory
{
public:
    void SetThreeTier(bool on) override { m_threeTier = on; }
    bool ThreeTier() const override { return m_threeTier; }
    std::shared_ptr<Connection> newConnection(qint32) override { return std::make_shared<Connection>(); }
    std::shared_ptr<Recordset> newRecordset(qint32) override { return std::make_shared<Recordset>(); }

private:
    bool m_threeTier = false;
};

std::unique_ptr<ConnectionFactory> &theFactory()
{
    static std::unique_ptr<ConnectionFactory> factory;
    return factory;
}

} // namespace

ConnectionFactory::~ConnectionFactory() = default;

ConnectionFactory &ConnectionFactory::instance()
{
    if (!theFactory())
        theFactory() = std::make_unique<PlainFactory>();
    return *theFactory();
}

void ConnectionFactory::setInstance(std::unique_ptr<ConnectionFactory> factory)
{
    theFactory() = std::move(factory);
}

} // namespace ADODB
