#pragma once

#include <QtCore/QString>

namespace KOVAVSFDataGridLib {

// As engines compare names by default.
inline bool isSameName(const QString &a, const QString &b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

} // namespace KOVAVSFDataGridLib
