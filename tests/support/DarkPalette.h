#pragma once

#include <QtGui/QPalette>

// The colours of a dark desktop, as used by Qt's own style.
namespace KovaTest {

inline QPalette darkPalette()
{
    QPalette palette(QColor(50, 50, 50));
    palette.setColor(QPalette::Base, QColor(36, 36, 36));
    palette.setColor(QPalette::AlternateBase, QColor(43, 43, 43));
    palette.setColor(QPalette::Highlight, QColor(48, 140, 198));
    palette.setColor(QPalette::Link, QColor(80, 160, 240));
    // As desktops have them; Qt makes those of disabled texts of the others only for light colours.
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(150, 150, 150));
    palette.setColor(QPalette::Disabled, QPalette::Base, QColor(45, 45, 45));
    QColor hint = palette.color(QPalette::Text);
    hint.setAlpha(128);
    palette.setColor(QPalette::PlaceholderText, hint);
    return palette;
}

} // namespace KovaTest
