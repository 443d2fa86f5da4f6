#pragma once

#include <QtWidgets/QMessageBox>

class QWidget;

// Every message box of the library is made here: plain text, a title always set (the application's
// display name when none is given), modal above the window of `parent`. When `parent` is destroyed under an
// open box, the box goes with it and counts as closed.
namespace KOVAVSFDataGridLib::Messages {

// Shows a text with an OK button.
void show(QWidget *parent, const QString &text, const QString &title = {},
          QMessageBox::Icon icon = QMessageBox::NoIcon);

// The same with the cause below the text, in the data access' own words.
void showWithCause(QWidget *parent, const QString &text, const QString &cause);

// The same with one more button; true when that was pressed. Enter presses OK. An empty `cause` isn't shown.
bool offer(QWidget *parent, const QString &text, const QString &cause, const QString &button);

// Asks with the buttons Yes and No; true for Yes. Closing the box counts as No. Enter presses `onEnter`.
bool ask(QWidget *parent, const QString &text, const QString &title, QMessageBox::Icon icon,
         QMessageBox::StandardButton onEnter = QMessageBox::Yes);

// Asks what becomes of changes: Save, Discard or Cancel. Enter presses Save. Closing the box counts as
// Cancel. A button with the text of `offered`, where that isn't empty, answers NoButton.
QMessageBox::StandardButton askToSave(QWidget *parent, const QString &text, const QString &title,
                                      const QString &offered = {});

// Shows a text in a box of its own, without waiting for the user to close it.
void showLater(const QString &text);

} // namespace KOVAVSFDataGridLib::Messages
