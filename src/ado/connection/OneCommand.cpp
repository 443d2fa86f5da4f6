#include "ado/connection/OneCommand.h"

#include <utility>

namespace ADODB {

namespace {

thread_local OneCommand *outermost = nullptr;

} // namespace

OneCommand::OneCommand() : m_outer(outermost)
{
    if (!m_outer)
        outermost = this;
}

OneCommand::~OneCommand()
{
    if (m_outer)
        return;
    outermost = nullptr;
    for (const auto &end : m_ends)
        end();
}

OneCommand *OneCommand::current()
{
    return outermost;
}

void OneCommand::atEnd(std::function<void()> end)
{
    m_ends.push_back(std::move(end));
}

} // namespace ADODB
