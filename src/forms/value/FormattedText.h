#pragma once

#include <QtCore/QString>

#include <optional>

namespace KOVAVSFDataGridLib {

// A text with its structure made visible by line breaks and indents. Nothing else in it changes.
struct FormattedText
{
    enum class Kind { Json, Xml };

    Kind kind;
    QString text;

    // Longer texts are not looked at.
    static constexpr qsizetype longest = 1000000;
    // Nothing for a text that is no JSON object or array and no XML.
    static std::optional<FormattedText> of(const QString &text);
};

} // namespace KOVAVSFDataGridLib
