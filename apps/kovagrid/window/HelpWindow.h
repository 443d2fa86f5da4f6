#pragma once

class QWidget;

// Shows all keyboard shortcuts, those of the grid and those of this program.
void showShortcuts(QWidget *parent);
