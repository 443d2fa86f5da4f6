#pragma once

#include <QtCore/QString>

#include <optional>

namespace ADODB {

// A display format that the user chose for a column. It affects only what is shown, not what is copied,
// compared or written. For the rooms of this library.
struct DisplayFormat
{
    static constexpr int mostDecimals = 15;

    bool hasThousands = false;
    int decimals = -1; // rounded half away from zero; -1: as many as the text has
    enum class Truth { Word, YesNo, Box };
    Truth truth = Truth::Word; // how a Boolean is shown
    // If all decimals are shown: a number with fewer decimals is filled up with zeros to this many. It comes
    // from the field and is not part of the text.
    int leastDecimals = 0;

    // Accepts "0", "0.00", "#,##0", "#,##0.000", "#,##" (any decimals with thousands), "是/否", "☑/☐", and ""
    // for none. Returns nothing for any other text.
    static std::optional<DisplayFormat> fromText(const QString &text);
    QString toText() const;

    bool isNone() const
    {
        return !hasThousands && decimals < 0 && truth == Truth::Word && leastDecimals == 0;
    }
    // A text that the format does not apply to is returned unchanged.
    QString applied(const QString &text) const;

    // The same for a format that has only `leastDecimals`, in place and in UTF-8, for code that reads many.
    void pad(QByteArray &text) const;

    bool operator==(const DisplayFormat &) const = default;
};

} // namespace ADODB
