#pragma once

class QWidget;

// Shows all keyboard shortcuts of the grid and of this program.
void showShortcuts(QWidget *parent);
