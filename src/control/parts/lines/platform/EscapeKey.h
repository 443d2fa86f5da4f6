#pragma once

#include <QtCore/QtGlobal>

#include <memory>

namespace KOVAVSFDataGridLib {

// The Esc key as the keyboard itself tells it, for a time in which no events are dispatched. The events of
// the user's input stay where they are.
//
// X11 and Windows can be asked. On other systems the key is never seen.
class EscapeKey
{
public:
    EscapeKey();
    ~EscapeKey();
    Q_DISABLE_COPY_MOVE(EscapeKey)

    // Whether the key has been pressed since this object exists. It sees a key that is down while it is
    // called, so it must be called every few milliseconds; it does not block. A key that is down from the
    // beginning counts only if it is released and pressed again, and none counts while another application
    // has the focus.
    bool isPressed();

private:
    class Keyboard;

    const std::unique_ptr<Keyboard> m_keyboard; // null if it can't be asked
    bool m_wasUp = false;
};

} // namespace KOVAVSFDataGridLib
