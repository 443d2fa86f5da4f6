#pragma once

#include <QtCore/QString>

#include <optional>

namespace KOVAVSFDataGridLib {

// A page number as the user typed it.
struct TypedPage
{
    qint32 number;
    QString text; // what was typed, shortened from its end until it fitted 32 bits

    // Nothing when the text is not a number. A fraction is rounded.
    static std::optional<TypedPage> read(QString text);
};

} // namespace KOVAVSFDataGridLib
