#pragma once

#include <QtCore/qglobal.h>
#include <QtGui/QColor>

class QPalette;

namespace KOVAVSFDataGridLib {

// A colour in automation's form: 0x00BBGGRR, or 0x80000000 plus the index of a system colour, which follows
// the palette.
class OleColor
{
public:
    static constexpr quint32 systemColourBit = 0x80000000u;
    static constexpr quint32 buttonFace = 0x8000000Fu;

    explicit constexpr OleColor(quint32 number) : m_number(number) {}
    explicit OleColor(const QColor &colour);

    constexpr quint32 number() const { return m_number; }
    // System colours that a palette doesn't have are shown as the button-face colour.
    QColor in(const QPalette &palette) const;

private:
    quint32 m_number;
};

} // namespace KOVAVSFDataGridLib
