#include "Printing.h"

#include "ado/Connection.h"
#include "ado/ConnectionFactory.h"
#include "ado/Recordset.h"

#include <gtest/gtest.h>

using namespace ADODB;

namespace {

class CountingFactory : public ConnectionFactory
{
public:
    explicit CountingFactory(int &handedOut) : m_handedOut(handedOut) {}
    void SetThreeTier(bool on) override { m_threeTier = on; }
    bool ThreeTier() const override { return m_threeTier; }
    std::shared_ptr<Connection> newConnection(qint32) override
    {
        ++m_handedOut;
        return std::make_shared<Connection>();
    }
    std::shared_ptr<Recordset> newRecordset(qint32) override
    {
        ++m_handedOut;
        return std::make_shared<Recordset>();
    }

private:
    int &m_handedOut;
    bool m_threeTier = false;
};

class ConnectionFactoryTest : public testing::Test
{
protected:
    ~ConnectionFactoryTest() override { ConnectionFactory::setInstance(nullptr); }
};

TEST_F(ConnectionFactoryTest, HandsOutNewClosedObjects)
{
    auto &factory = ConnectionFactory::instance();
    EXPECT_EQ(factory.newConnection(2)->State(), adStateClosed);
    EXPECT_EQ(factory.newRecordset(3)->State(), adStateClosed);
    EXPECT_NE(factory.newConnection(2), factory.newConnection(2));
}

TEST_F(ConnectionFactoryTest, RemembersTheThreeTierSwitchUntilReleased)
{
    EXPECT_FALSE(ConnectionFactory::instance().ThreeTier());
    ConnectionFactory::instance().SetThreeTier(true);
    EXPECT_TRUE(ConnectionFactory::instance().ThreeTier());
    ConnectionFactory::setInstance(nullptr);
    EXPECT_FALSE(ConnectionFactory::instance().ThreeTier());
}

TEST_F(ConnectionFactoryTest, CanBeReplacedByAHost)
{
    int handedOut = 0;
    ConnectionFactory::setInstance(std::make_unique<CountingFactory>(handedOut));
    ConnectionFactory::instance().newConnection(1);
    ConnectionFactory::instance().newRecordset(1);
    EXPECT_EQ(handedOut, 2);
}

} // namespace
