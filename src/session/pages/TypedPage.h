#pragma once

#include <QtCore/QString>

#include <optional>

namespace KOVAVSFDataGridLib {

// A page number as the user typed it, with digits of any width.
struct TypedPage
{
    qint32 number; // 0 when no number can be made of the text
    QString text;  // what was typed, shortened from its end until it was a number of 32 bits

    // Nothing when `mustBeNumber` and the text as typed is not one. A fraction is rounded then.
    static std::optional<TypedPage> read(const QString &typed, bool mustBeNumber);
};

} // namespace KOVAVSFDataGridLib
