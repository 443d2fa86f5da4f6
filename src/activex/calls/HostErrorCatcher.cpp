#include "activex/calls/HostErrorCatcher.h"

#include <utility>

namespace KOVAVSFDataGridLib::ActiveX {

HostErrorCatcher::HostErrorCatcher(QObject &object) : m_outer(std::exchange(s_innermost, this))
{
    if (object.metaObject()->indexOfSignal("HostError(qint32,QString)") >= 0)
        connect(&object, SIGNAL(HostError(qint32, QString)), this, SLOT(take(qint32, QString)));
}

HostErrorCatcher::~HostErrorCatcher()
{
    s_innermost = m_outer;
}

void HostErrorCatcher::take(qint32 number, const QString &description)
{
    if (m_number != 0 || s_innermost != this)
        return;
    m_number = number;
    m_description = description;
}

} // namespace KOVAVSFDataGridLib::ActiveX
