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
    QColor hint = palette.color(QPalette::Text);
    hint.setAlpha(128);
    palette.setColor(QPalette::PlaceholderText, hint);
    return palette;
}

} // namespace KovaTest
