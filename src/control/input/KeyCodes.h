#pragma once

#include <QtCore/Qt>

class QKeyEvent;

// Keys, buttons and modifiers as the numbers that hosts of automation controls know.
namespace KOVAVSFDataGridLib {

// The virtual-key number: Enter 13, Esc 27, F1 112, letters as in upper case; 0 for a key without one.
qint16 virtualKey(const QKeyEvent &event);
// 1 Shift + 2 Ctrl + 4 Alt.
qint16 shiftState(Qt::KeyboardModifiers modifiers);
// 1 left, 2 right, 4 middle; the sum for several.
qint16 buttonState(Qt::MouseButtons buttons);

} // namespace KOVAVSFDataGridLib
