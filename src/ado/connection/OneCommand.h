#pragma once

#include <QtCore/QtGlobal>

#include <functional>
#include <vector>

namespace ADODB {

// While it exists, the reads of this thread belong to one command. So a provider may leave a transaction open
// between two statements, which saves two round trips to the server. Can be nested.
class OneCommand
{
public:
    OneCommand();
    ~OneCommand();
    Q_DISABLE_COPY_MOVE(OneCommand)

    // The outermost one; null if there is none.
    static OneCommand *current();
    // Registers a function that ends what was left open, at the end of the command.
    void atEnd(std::function<void()> end);

private:
    OneCommand *m_outer;
    std::vector<std::function<void()>> m_ends;
};

} // namespace ADODB
