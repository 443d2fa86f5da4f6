#include "session/pages/TypedPage.h"

#include <QtCore/QRegularExpression>

#include <cmath>
#include <limits>

namespace KOVAVSFDataGridLib {

namespace {

std::optional<qint32> wholeNumber(const QString &text)
{
    bool isNumber = false;
    const qint32 number = text.toInt(&isNumber);
    return isNumber ? std::optional(number) : std::nullopt;
}

std::optional<qint32> roundedNumber(const QString &text)
{
    using Limits = std::numeric_limits<qint32>;
    bool isNumber = false;
    const double number = std::nearbyint(text.toDouble(&isNumber));
    const bool fits = isNumber && number >= Limits::min() && number <= Limits::max();
    return fits ? std::optional(static_cast<qint32>(number)) : std::nullopt;
}

} // namespace

std::optional<TypedPage> TypedPage::read(const QString &typed, bool mustBeNumber)
{
    static const QRegularExpression number(QStringLiteral("\\A[+-]?[0-9]+(\\.[0-9]*)?\\z"));
    // Chinese input methods produce full-width digits.
    QString text = typed.normalized(QString::NormalizationForm_KC).trimmed();
    if (mustBeNumber && !number.match(text).hasMatch())
        return std::nullopt;
    for (; !text.isEmpty(); text.chop(1)) {
        if (const auto page = mustBeNumber ? roundedNumber(text) : wholeNumber(text))
            return TypedPage{*page, text};
    }
    return TypedPage{0, text};
}

} // namespace KOVAVSFDataGridLib
