#pragma once

#include <QtCore/QString>

#include <optional>

namespace KOVAVSFDataGridLib {

// A page number typed by the user, possibly with full-width digits.
struct TypedPage
{
    qint32 number; // 0 if the text can't be converted to a number
    QString text;  // the typed text, shortened from its end until it fits a 32-bit number

    // No value if `mustBeNumber` and the typed text is not a number. Fractions are then rounded.
    static std::optional<TypedPage> read(const QString &typed, bool mustBeNumber);
};

} // namespace KOVAVSFDataGridLib
