#pragma once

class QWidget;

namespace KOVAVSFDataGridLib {

// True while the widget sits on a form that is being edited in Qt Designer or a program built on it.
bool isInFormEditor(const QWidget &widget);

} // namespace KOVAVSFDataGridLib
