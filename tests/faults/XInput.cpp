#include "XInput.h"

#include <gtest/gtest.h>
#include <xcb/xcb.h>
#include <xcb/xcbext.h>

#include <array>
#include <cstdlib>
#include <memory>

namespace KovaTest {

namespace {

// The request FakeInput of the extension XTEST.
struct FakeInput
{
    std::uint32_t header = 0; // written by the library
    std::uint8_t kind = 0;
    std::uint8_t detail = 0;
    std::uint16_t unused = 0;
    std::uint32_t delay = 0;
    std::uint32_t root = 0; // the current one
    std::uint32_t unused2[2] = {};
    std::int16_t x = 0;
    std::int16_t y = 0;
    std::uint8_t unused3[7] = {};
    std::uint8_t device = 0;
};
static_assert(sizeof(FakeInput) == 36);

xcb_extension_t &xtest()
{
    static xcb_extension_t extension{"XTEST", 0};
    return extension;
}

} // namespace

XInput::XInput() : m_connection(xcb_connect(nullptr, nullptr))
{
    EXPECT_EQ(xcb_connection_has_error(m_connection), 0);
    EXPECT_TRUE(xcb_get_extension_data(m_connection, &xtest())->present);
}

XInput::~XInput()
{
    xcb_disconnect(m_connection);
}

void XInput::type(std::string_view letters)
{
    for (const char letter : letters) {
        press(static_cast<std::uint8_t>(letter));
        release(static_cast<std::uint8_t>(letter));
    }
}

void XInput::click(QPoint place)
{
    constexpr std::uint8_t left = 1;
    send(XCB_MOTION_NOTIFY, 0, place);
    send(XCB_BUTTON_PRESS, left);
    send(XCB_BUTTON_RELEASE, left);
}

std::uint8_t XInput::keyOf(std::uint32_t symbol) const
{
    const xcb_setup_t &setup = *xcb_get_setup(m_connection);
    const auto count = static_cast<std::uint8_t>(setup.max_keycode - setup.min_keycode + 1);
    const std::unique_ptr<xcb_get_keyboard_mapping_reply_t, decltype(&std::free)> reply(
        xcb_get_keyboard_mapping_reply(
            m_connection, xcb_get_keyboard_mapping(m_connection, setup.min_keycode, count), nullptr),
        &std::free);
    if (reply) {
        const xcb_keysym_t *const symbols = xcb_get_keyboard_mapping_keysyms(reply.get());
        for (int code = 0; code < count; ++code) {
            if (symbols[code * reply->keysyms_per_keycode] == symbol)
                return static_cast<std::uint8_t>(setup.min_keycode + code);
        }
    }
    ADD_FAILURE() << "no key for " << symbol;
    return 0;
}

void XInput::send(int kind, std::uint8_t detail, QPoint place)
{
    FakeInput request;
    request.kind = static_cast<std::uint8_t>(kind);
    request.detail = detail;
    request.x = static_cast<std::int16_t>(place.x());
    request.y = static_cast<std::int16_t>(place.y());
    std::array<iovec, 3> parts{}; // the library uses two places before the request
    parts[2] = {&request, sizeof(request)};
    constexpr std::uint8_t fakeInput = 2;
    const xcb_protocol_request_t protocol{1, &xtest(), fakeInput, 1};
    xcb_send_request(m_connection, 0, parts.data() + 2, &protocol);
    xcb_flush(m_connection);
}

} // namespace KovaTest
