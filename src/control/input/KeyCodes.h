#pragma once

#include <QtCore/Qt>

class QKeyEvent;

// Keys, buttons and modifiers as the numbers that automation hosts use.
namespace KOVAVSFDataGridLib {

// The virtual-key code: Enter 13, Esc 27, F1 112, letters as in upper case; 0 if the key has none.
qint16 virtualKey(const QKeyEvent &event);
// 1 Shift + 2 Ctrl + 4 Alt.
qint16 shiftState(Qt::KeyboardModifiers modifiers);
// 1 left, 2 right, 4 middle; the sum for several.
qint16 buttonState(Qt::MouseButtons buttons);

} // namespace KOVAVSFDataGridLib
