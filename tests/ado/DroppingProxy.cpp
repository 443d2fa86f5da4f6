#include "DroppingProxy.h"

namespace AdoTest {

DroppingProxy::DroppingProxy(int serverPort)
    : m_proxy(serverPort, [this](KovaTest::LoopbackProxy::From from, const QByteArray &said) {
          return passes(from, said);
      })
{
}

void DroppingProxy::dropAt(const QByteArray &words, When when)
{
    m_words = words;
    m_when = when;
    m_dropped = false;
    m_armed = true;
}

void DroppingProxy::setStaysAway(bool stays)
{
    m_staysAway = stays;
}

bool DroppingProxy::passes(KovaTest::LoopbackProxy::From from, const QByteArray &said)
{
    if (m_dropped && !m_dropsAnswer && m_staysAway)
        return false;
    if (from == KovaTest::LoopbackProxy::From::Server)
        return !m_dropsAnswer.exchange(false);
    if (!m_armed)
        return true;
    const QByteArray words = said.toUpper();
    if (!words.contains(m_words) || words.contains("AUTOCOMMIT"))
        return true;
    m_armed = false;
    m_dropsAnswer = m_when == AfterTheServerAnswered;
    m_dropped = true;
    return m_dropsAnswer;
}

} // namespace AdoTest
