#pragma once

#include <QtWidgets/QMessageBox>

class QWidget;

// All message boxes of the library: plain text, always with a title (by default the application's display
// name), modal above the window of `parent`. If `parent` is destroyed while a box is open, the box is
// destroyed too, which has the same result as closing it.
namespace KOVAVSFDataGridLib::Messages {

// Shows a text with an OK button.
void show(QWidget *parent, const QString &text, const QString &title = {},
          QMessageBox::Icon icon = QMessageBox::NoIcon);

// The same with the cause below the text, in the words of the data access layer.
void showWithCause(QWidget *parent, const QString &text, const QString &cause);

// The same with another button; true if that was pressed. Enter presses OK. An empty `cause` isn't shown.
bool offer(QWidget *parent, const QString &text, const QString &cause, const QString &button);

// Asks with the buttons Yes and No; true for Yes. Closing the box means No. Enter presses `onEnter`.
bool ask(QWidget *parent, const QString &text, const QString &title, QMessageBox::Icon icon,
         QMessageBox::StandardButton onEnter = QMessageBox::Yes);

// Asks what to do with changes: Save, Discard or Cancel. Enter presses Save. Closing the box means Cancel. If
// `offered` isn't empty, it is the text of another button, which returns NoButton.
QMessageBox::StandardButton askToSave(QWidget *parent, const QString &text, const QString &title,
                                      const QString &offered = {});

// Shows a text in a non-modal box and returns immediately.
void showLater(const QString &text);

} // namespace KOVAVSFDataGridLib::Messages
