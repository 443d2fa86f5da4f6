#include "control/face/OleColor.h"

#include <QtGui/QPalette>

namespace KOVAVSFDataGridLib {

namespace {

QPalette::ColorRole roleOf(quint32 systemIndex)
{
    switch (systemIndex) {
    case 5:
        return QPalette::Base;
    case 8:
        return QPalette::Text;
    case 13:
        return QPalette::Highlight;
    case 14:
        return QPalette::HighlightedText;
    case 18:
        return QPalette::ButtonText;
    default:
        return QPalette::Button;
    }
}

} // namespace

OleColor::OleColor(const QColor &colour)
    : m_number(static_cast<quint32>(colour.red()) | static_cast<quint32>(colour.green()) << 8 |
               static_cast<quint32>(colour.blue()) << 16)
{
}

QColor OleColor::in(const QPalette &palette) const
{
    if (m_number & systemColourBit)
        return palette.color(QPalette::Active, roleOf(m_number & 0xFFu));
    return QColor(static_cast<int>(m_number & 0xFFu), static_cast<int>(m_number >> 8 & 0xFFu),
                  static_cast<int>(m_number >> 16 & 0xFFu));
}

} // namespace KOVAVSFDataGridLib
