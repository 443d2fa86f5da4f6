#pragma once

#include <QtCore/QRect>
#include <QtWidgets/QWidget>

#include <functional>

namespace KOVAVSFDataGridLib {

// A window that can show a progress line for as long as this lives, whatever waits for a server: a change, a
// question about the catalogue, a call of the host's. The line is in the dialog that is open, else in the
// window that the user works in. What opens a statement shows a line of its own.
//
// Without any such window that can be seen, waits block the thread, as nobody could cancel them.
class WaitPlace
{
public:
    // `window` and `place` as LoadProgress takes them.
    WaitPlace(QWidget &window, std::function<QRect()> place);
    ~WaitPlace();
    Q_DISABLE_COPY_MOVE(WaitPlace)

    QWidget &window() const { return m_window; }
    QRect place() const { return m_place(); }

private:
    QWidget &m_window;
    std::function<QRect()> m_place;
};

} // namespace KOVAVSFDataGridLib
