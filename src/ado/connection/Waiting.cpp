#include "ado/connection/Waiting.h"

#include <utility>

namespace ADODB {

namespace {

thread_local Waiting *innermost = nullptr;

} // namespace

Waiting::Waiting(std::function<bool()> shouldContinue)
    : m_shouldContinue(std::move(shouldContinue)), m_outer(std::exchange(innermost, this))
{
}

Waiting::~Waiting()
{
    innermost = m_outer;
}

bool Waiting::isWatched()
{
    return innermost != nullptr;
}

bool Waiting::shouldContinue()
{
    return !innermost || innermost->m_shouldContinue();
}

} // namespace ADODB
