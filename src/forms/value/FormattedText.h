#pragma once

#include <QtCore/QString>

#include <optional>

namespace KOVAVSFDataGridLib {

// A text with line breaks and indents that show its structure. Nothing else in it changes.
struct FormattedText
{
    enum class Kind { Json, Xml };

    Kind kind;
    QString text;

    // Longer texts are not formatted.
    static constexpr qsizetype longest = 1000000;
    // Nothing if the text is neither a JSON object or array nor XML.
    static std::optional<FormattedText> of(const QString &text);
};

} // namespace KOVAVSFDataGridLib
