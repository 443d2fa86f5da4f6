#include "control/face/ControlError.h"

namespace KOVAVSFDataGridLib {

ControlError::ControlError(qint32 number, const QString &description)
    : m_number(number), m_description(description), m_what(description.toUtf8())
{
}

ControlError::~ControlError() = default;

} // namespace KOVAVSFDataGridLib
