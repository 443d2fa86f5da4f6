#pragma once

#include <QtCore/QtGlobal>

#include <functional>
#include <vector>

namespace ADODB {

// While it lives, what this thread reads follows at once and belongs together. So a provider may leave a
// transaction open between two statements, which spares the server two questions. They can be nested.
class OneCommand
{
public:
    OneCommand();
    ~OneCommand();
    Q_DISABLE_COPY_MOVE(OneCommand)

    // The outermost one; null when there is none.
    static OneCommand *current();
    // What is left open is ended by this, when the command ends.
    void atEnd(std::function<void()> end);

private:
    OneCommand *m_outer;
    std::vector<std::function<void()>> m_ends;
};

} // namespace ADODB
