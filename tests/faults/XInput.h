#pragma once

#include <QtCore/QPoint>
#include <QtCore/QtGlobal>

#include <cstdint>
#include <string_view>

struct xcb_connection_t;

namespace KovaTest {

// A user's keyboard and mouse at the X server: what is typed goes to the window with the focus, and comes to
// the program as real input does. Can be used in any thread, by one at a time.
class XInput
{
public:
    XInput();
    ~XInput();
    Q_DISABLE_COPY_MOVE(XInput)

    void press(std::uint32_t symbol) { send(keyPress, keyOf(symbol)); }
    void release(std::uint32_t symbol) { send(keyRelease, keyOf(symbol)); }
    // Lower-case letters.
    void type(std::string_view letters);
    void click(QPoint place);

    static constexpr std::uint32_t escape = 0xff1b;

private:
    static constexpr int keyPress = 2;
    static constexpr int keyRelease = 3;

    std::uint8_t keyOf(std::uint32_t symbol) const;
    void send(int kind, std::uint8_t detail, QPoint place = {});

    xcb_connection_t *const m_connection;
};

} // namespace KovaTest
