#include "control/parts/lines/platform/EscapeKey.h"

#include <QtGui/QGuiApplication>

#include <optional>

#if defined(Q_OS_WIN)
#include <windows.h>
#elif defined(KOVA_HAS_XCB)
#include <array>
#include <cstdlib>
#include <xcb/xcb.h>
#include <xcb/xcbext.h>
#endif

namespace KOVAVSFDataGridLib {

#if defined(Q_OS_WIN)

class EscapeKey::Keyboard
{
public:
    static std::unique_ptr<Keyboard> make() { return std::make_unique<Keyboard>(); }

    static std::optional<bool> isEscapeDown()
    {
        constexpr int down = 0x8000;
        return (GetAsyncKeyState(VK_ESCAPE) & down) != 0;
    }
};

#elif defined(KOVA_HAS_XCB)

namespace {

struct FreeReply
{
    void operator()(void *reply) const { std::free(reply); } // as the library asks for
};
template<typename Reply>
using ReplyPointer = std::unique_ptr<Reply, FreeReply>;

// A bit for each key code.
using KeySet = std::array<std::uint8_t, sizeof(xcb_query_keymap_reply_t::keys)>;

// The keys that the user's layout makes an Esc, in any group or level.
KeySet escapeKeys(xcb_connection_t *connection)
{
    constexpr xcb_keysym_t escape = 0xff1b;
    KeySet keys{};
    const xcb_setup_t &setup = *xcb_get_setup(connection);
    const int first = setup.min_keycode;
    const auto asked = xcb_get_keyboard_mapping(connection, setup.min_keycode,
                                                static_cast<std::uint8_t>(setup.max_keycode - first + 1));
    const ReplyPointer<xcb_get_keyboard_mapping_reply_t> reply(
        xcb_get_keyboard_mapping_reply(connection, asked, nullptr));
    if (!reply || reply->keysyms_per_keycode == 0)
        return keys;
    const xcb_keysym_t *const symbols = xcb_get_keyboard_mapping_keysyms(reply.get());
    for (int i = 0; i < xcb_get_keyboard_mapping_keysyms_length(reply.get()); ++i) {
        const int code = first + i / reply->keysyms_per_keycode;
        if (symbols[i] == escape)
            keys.at(static_cast<std::size_t>(code / 8)) |= static_cast<std::uint8_t>(1 << code % 8);
    }
    return keys;
}

} // namespace

// Never waits for an answer of the X server, which can be on another machine: each question is answered by
// one of the next calls.
class EscapeKey::Keyboard
{
public:
    static std::unique_ptr<Keyboard> make()
    {
        const auto *const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
        return x11 && x11->connection() ? std::make_unique<Keyboard>(x11->connection()) : nullptr;
    }

    explicit Keyboard(xcb_connection_t *connection) : m_connection(connection) { ask(); }
    ~Keyboard() { xcb_discard_reply(m_connection, m_question.sequence); }
    Q_DISABLE_COPY_MOVE(Keyboard)

    std::optional<bool> isEscapeDown()
    {
        static const KeySet escape = escapeKeys(m_connection);
        void *answer = nullptr;
        xcb_generic_error_t *error = nullptr;
        if (!xcb_poll_for_reply(m_connection, m_question.sequence, &answer, &error))
            return std::nullopt;
        const ReplyPointer<xcb_generic_error_t> ownError(error);
        const ReplyPointer<xcb_query_keymap_reply_t> reply(static_cast<xcb_query_keymap_reply_t *>(answer));
        ask();
        if (!reply)
            return std::nullopt;
        bool isDown = false;
        for (std::size_t i = 0; i < escape.size(); ++i)
            isDown |= (reply->keys[i] & escape[i]) != 0;
        return isDown;
    }

private:
    void ask()
    {
        m_question = xcb_query_keymap(m_connection);
        xcb_flush(m_connection);
    }

    xcb_connection_t *const m_connection;
    xcb_query_keymap_cookie_t m_question{};
};

#else

class EscapeKey::Keyboard
{
public:
    static std::unique_ptr<Keyboard> make() { return nullptr; }
    static std::optional<bool> isEscapeDown() { return std::nullopt; }
};

#endif

EscapeKey::EscapeKey() : m_keyboard(Keyboard::make()) {}

EscapeKey::~EscapeKey() = default;

bool EscapeKey::isPressed()
{
    const std::optional<bool> isDown = m_keyboard ? m_keyboard->isEscapeDown() : std::nullopt;
    if (!isDown)
        return false;
    m_wasUp |= !*isDown;
    return *isDown && m_wasUp && QGuiApplication::focusWindow();
}

} // namespace KOVAVSFDataGridLib
