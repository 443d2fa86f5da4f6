#pragma once

#include <QtCore/QRect>
#include <QtWidgets/QWidget>

#include <functional>

namespace KOVAVSFDataGridLib {

// Makes a window available for progress lines while it exists, for all that waits for a server: a change, a
// catalogue query, a call of the host. The line is shown in the open dialog or else in the window that the
// user works in. Opening a statement shows its own line.
//
// Without any such visible window, waits block the thread, because nobody could cancel them.
class WaitPlace
{
public:
    // `window` and `place` as for LoadProgress.
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
