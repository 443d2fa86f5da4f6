#pragma once

#include <QtCore/QAbstractNativeEventFilter>

#include <windows.h>

class QWidget;

namespace KOVAVSFDataGridLib::ActiveX {

// Makes the host's window the owner of the dialogs that an embedded widget opens, so that they stay in front
// of it, and places them over it. Qt does neither, because it knows nothing of the host's window. For as long
// as the widget is embedded.
class DialogOwner final : public QAbstractNativeEventFilter
{
public:
    explicit DialogOwner(QWidget &widget);
    ~DialogOwner() override;

    bool nativeEventFilter(const QByteArray &type, void *message, qintptr *result) override;

    // Ends the dialogs that are open, as if the user had cancelled them: their place is gone.
    void cancelDialogs();

private:
    QWidget *dialogOf(HWND window) const; // null for a window that is none of the widget's dialogs
    void take(HWND dialog, bool place) const;

    QWidget &m_widget;
};

} // namespace KOVAVSFDataGridLib::ActiveX
