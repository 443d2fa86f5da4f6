#include "control/viewer/TypedPage.h"

#include <QtCore/QRegularExpression>

#include <cmath>
#include <limits>

namespace KOVAVSFDataGridLib {

std::optional<TypedPage> TypedPage::read(QString text)
{
    static const QRegularExpression number(QStringLiteral("\\A\\s*[+-]?[0-9]+(\\.[0-9]*)?\\s*\\z"));
    if (!number.match(text).hasMatch())
        return std::nullopt;
    using Limits = std::numeric_limits<qint32>;
    for (;; text.chop(1)) {
        bool isNumber = false;
        const double value = std::nearbyint(text.toDouble(&isNumber));
        if (isNumber && value >= Limits::min() && value <= Limits::max())
            return TypedPage{static_cast<qint32>(value), text};
    }
}

} // namespace KOVAVSFDataGridLib
