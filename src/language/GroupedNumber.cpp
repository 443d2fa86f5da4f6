#include "language/GroupedNumber.h"

#include <QtCore/QLocale>

namespace KOVAVSFDataGridLib {

QString grouped(qint64 number)
{
    return QLocale(QLocale::English, QLocale::UnitedStates).toString(number);
}

} // namespace KOVAVSFDataGridLib
