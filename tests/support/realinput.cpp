// SPDX-License-Identifier: MIT

#include "realinput.h"

#include <QHash>
#include <QVector>

#include <xcb/xtest.h>

#include <cstdlib>
#include <memory>

namespace {

struct Free
{
    void operator()(void *reply) const { std::free(reply); }
};

template <typename Reply> using ReplyPointer = std::unique_ptr<Reply, Free>;

// A test that cannot reach the server has nothing to test.
void require(bool condition, const char *what)
{
    if (!condition)
        qFatal("real input: %s", what);
}

quint8 buttonNumber(Qt::MouseButton button)
{
    switch (button) {
    case Qt::LeftButton:
        return 1;
    case Qt::MiddleButton:
        return 2;
    case Qt::RightButton:
        return 3;
    default:
        qFatal("real input: no such button");
    }
}

quint32 symbolOf(Qt::Key key)
{
    static const QHash<int, quint32> symbols = {
        {Qt::Key_Backspace, 0xff08}, {Qt::Key_Tab, 0xff09},     {Qt::Key_Return, 0xff0d},
        {Qt::Key_Escape, 0xff1b},    {Qt::Key_Home, 0xff50},    {Qt::Key_Left, 0xff51},
        {Qt::Key_Up, 0xff52},        {Qt::Key_Right, 0xff53},   {Qt::Key_Down, 0xff54},
        {Qt::Key_End, 0xff57},       {Qt::Key_Menu, 0xff67},    {Qt::Key_F2, 0xffbf},
        {Qt::Key_Shift, 0xffe1},     {Qt::Key_Control, 0xffe3}, {Qt::Key_Delete, 0xffff}};
    // Qt and X both number the other characters of Latin 1 by their code, letters as capitals in
    // Qt.
    const int code = key >= Qt::Key_A && key <= Qt::Key_Z ? key - Qt::Key_A + 'a' : int(key);
    return symbols.value(key, quint32(code));
}

} // namespace

RealInput::RealInput()
    : m_connection(xcb_connect(nullptr, nullptr))
{
    require(!xcb_connection_has_error(m_connection), "no X server");
    const ReplyPointer<xcb_test_get_version_reply_t> version(xcb_test_get_version_reply(
        m_connection, xcb_test_get_version(m_connection, 2, 2), nullptr));
    require(version != nullptr, "the X server does not take test input");
    m_root = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root;
    readKeyboard();
}

RealInput::~RealInput()
{
    releaseAll();
    xcb_disconnect(m_connection);
}

QPoint RealInput::position() const
{
    const ReplyPointer<xcb_query_pointer_reply_t> reply(
        xcb_query_pointer_reply(m_connection, xcb_query_pointer(m_connection, m_root), nullptr));
    require(reply != nullptr, "no pointer");
    return QPoint(reply->root_x, reply->root_y);
}

void RealInput::moveTo(const QPoint &position)
{
    fake(XCB_MOTION_NOTIFY, 0, position);
    finish();
}

void RealInput::press(Qt::MouseButton button)
{
    m_heldButtons.insert(buttonNumber(button));
    fake(XCB_BUTTON_PRESS, buttonNumber(button));
    finish();
}

void RealInput::release(Qt::MouseButton button)
{
    m_heldButtons.remove(buttonNumber(button));
    fake(XCB_BUTTON_RELEASE, buttonNumber(button));
    finish();
}

void RealInput::click(Qt::MouseButton button)
{
    fake(XCB_BUTTON_PRESS, buttonNumber(button));
    fake(XCB_BUTTON_RELEASE, buttonNumber(button));
    finish();
}

// All in one request to the server, whose clock decides whether two clicks are a double one.
void RealInput::doubleClick(Qt::MouseButton button)
{
    for (int i = 0; i < 2; ++i) {
        fake(XCB_BUTTON_PRESS, buttonNumber(button));
        fake(XCB_BUTTON_RELEASE, buttonNumber(button));
    }
    finish();
}

void RealInput::pressKey(Qt::Key key)
{
    const quint8 code = keyCode(symbolOf(key));
    m_heldKeys.insert(code);
    fake(XCB_KEY_PRESS, code);
    finish();
}

void RealInput::releaseKey(Qt::Key key)
{
    const quint8 code = keyCode(symbolOf(key));
    m_heldKeys.remove(code);
    fake(XCB_KEY_RELEASE, code);
    finish();
}

// At once, lest the server repeats a key that it believes to be held.
void RealInput::clickKey(Qt::Key key)
{
    const quint8 code = keyCode(symbolOf(key));
    fake(XCB_KEY_PRESS, code);
    fake(XCB_KEY_RELEASE, code);
    finish();
}

void RealInput::type(const QString &text)
{
    const quint8 shift = keyCode(symbolOf(Qt::Key_Shift));
    for (const QChar character : text) {
        bool shifted = false;
        const quint8 code = keyCode(character.unicode(), &shifted);
        if (shifted)
            fake(XCB_KEY_PRESS, shift);
        fake(XCB_KEY_PRESS, code);
        fake(XCB_KEY_RELEASE, code);
        if (shifted)
            fake(XCB_KEY_RELEASE, shift);
    }
    finish();
}

void RealInput::releaseAll()
{
    for (const quint8 button : std::as_const(m_heldButtons))
        fake(XCB_BUTTON_RELEASE, button);
    for (const quint8 key : std::as_const(m_heldKeys))
        fake(XCB_KEY_RELEASE, key);
    m_heldButtons.clear();
    m_heldKeys.clear();
    finish();
}

void RealInput::closeByWindowManager(const QWindow *window)
{
    const QByteArray name = QByteArrayLiteral("_NET_CLOSE_WINDOW");
    const ReplyPointer<xcb_intern_atom_reply_t> atom(xcb_intern_atom_reply(
        m_connection, xcb_intern_atom(m_connection, 0, quint16(name.size()), name.constData()),
        nullptr));
    require(atom != nullptr, "no atom for closing a window");
    xcb_client_message_event_t event = {};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = xcb_window_t(window->winId());
    event.type = atom->atom;
    event.data.data32[1] = 2; // as a pager or a task bar asks, on behalf of the user
    xcb_send_event(m_connection, 0, m_root,
                   XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   reinterpret_cast<const char *>(&event));
    finish();
}

QPoint RealInput::positionOf(const QWindow *window) const
{
    const ReplyPointer<xcb_translate_coordinates_reply_t> reply(xcb_translate_coordinates_reply(
        m_connection,
        xcb_translate_coordinates(m_connection, xcb_window_t(window->winId()), m_root, 0, 0),
        nullptr));
    require(reply != nullptr, "no such window");
    return QPoint(reply->dst_x, reply->dst_y);
}

void RealInput::fake(quint8 type, quint8 detail, const QPoint &position)
{
    xcb_test_fake_input(m_connection, type, detail, XCB_CURRENT_TIME, m_root, qint16(position.x()),
                        qint16(position.y()), 0);
}

// Waits until the server has done all that was asked of it.
void RealInput::finish()
{
    const ReplyPointer<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
    require(reply != nullptr, "the X server is gone");
}

void RealInput::readKeyboard()
{
    const xcb_setup_t *const setup = xcb_get_setup(m_connection);
    const quint8 count = quint8(setup->max_keycode - setup->min_keycode + 1);
    const ReplyPointer<xcb_get_keyboard_mapping_reply_t> reply(xcb_get_keyboard_mapping_reply(
        m_connection, xcb_get_keyboard_mapping(m_connection, setup->min_keycode, count), nullptr));
    require(reply != nullptr, "no keyboard");
    m_firstKey = setup->min_keycode;
    m_symbolsOfKey = reply->keysyms_per_keycode;
    const xcb_keysym_t *const symbols = xcb_get_keyboard_mapping_keysyms(reply.get());
    for (int i = 0; i < xcb_get_keyboard_mapping_keysyms_length(reply.get()); ++i)
        m_symbols.append(symbols[i]);
}

quint8 RealInput::keyCode(quint32 symbol, bool *shifted) const
{
    for (int level = 0; level < 2; ++level) {
        for (int i = level; i < m_symbols.size(); i += m_symbolsOfKey) {
            if (m_symbols.at(i) != symbol)
                continue;
            if (shifted)
                *shifted = level == 1;
            return quint8(m_firstKey + i / m_symbolsOfKey);
        }
    }
    qFatal("real input: no key for the symbol 0x%x", symbol);
}
