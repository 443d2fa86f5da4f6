#include "language/CountedText.h"

#include "language/GroupedNumber.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <limits>

namespace KOVAVSFDataGridLib {

QString CountedText::operator()(qint64 count) const
{
    return arg(count, grouped(count));
}

// Qt chooses the form. It would also write the number for %n, but without commas.
QString CountedText::formFor(qint64 count) const
{
    const qint64 known = std::clamp<qint64>(count, 0, std::numeric_limits<int>::max());
    return QCoreApplication::translate(m_context, m_source, nullptr, static_cast<int>(known));
}

} // namespace KOVAVSFDataGridLib
