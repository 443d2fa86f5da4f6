#include "DroppingProxy.h"

namespace AdoTest {

DroppingProxy::DroppingProxy(int serverPort)
    : m_proxy(serverPort, [this](KovaTest::LoopbackProxy::From from, const QByteArray &said) {
          return passes(from, said);
      })
{
}

void DroppingProxy::dropAtCommit(When when)
{
    m_when = when;
    m_armed = true;
}

bool DroppingProxy::passes(KovaTest::LoopbackProxy::From from, const QByteArray &said)
{
    if (from == KovaTest::LoopbackProxy::From::Server)
        return !m_dropsAnswer.exchange(false);
    const QByteArray words = said.toUpper();
    if (!m_armed || !words.contains("COMMIT") || words.contains("AUTOCOMMIT"))
        return true;
    m_armed = false;
    m_dropped = true;
    m_dropsAnswer = m_when == AfterTheServerAnswered;
    return m_dropsAnswer;
}

} // namespace AdoTest
