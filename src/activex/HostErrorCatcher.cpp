#include "activex/HostErrorCatcher.h"

namespace KOVAVSFDataGridLib::ActiveX {

HostErrorCatcher::HostErrorCatcher(QObject &object)
{
    if (object.metaObject()->indexOfSignal("HostError(qint32,QString)") >= 0)
        connect(&object, SIGNAL(HostError(qint32, QString)), this, SLOT(take(qint32, QString)));
}

void HostErrorCatcher::take(qint32 number, const QString &description)
{
    if (m_number != 0)
        return;
    m_number = number;
    m_description = description;
}

} // namespace KOVAVSFDataGridLib::ActiveX
