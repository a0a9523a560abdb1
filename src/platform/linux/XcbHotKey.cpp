#include "linux/XcbHotKey.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QtGui/qguiapplication_platform.h>

#include <xcb/xcb.h>
#include <xcb/xcb_keysyms.h>

#include <cstdlib>

namespace quorvane {

namespace {

constexpr xcb_keysym_t keysymS = 0x73; // XK_s
constexpr quint16 modifiers = XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1 /* Alt */ | XCB_MOD_MASK_4 /* Super */;
constexpr quint16 locks = XCB_MOD_MASK_LOCK | XCB_MOD_MASK_2 /* Num Lock */;

} // namespace

xcb_connection_t *XcbHotKey::applicationConnection()
{
    auto *x11 = qGuiApp ? qGuiApp->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
    return x11 && QGuiApplication::platformName() == QLatin1String("xcb") ? x11->connection() : nullptr;
}

XcbHotKey::XcbHotKey(xcb_connection_t *connection, QObject *parent)
    : HotKey(parent)
    , m_connection(connection)
{
    if (!m_connection)
        return;
    m_root = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root;
    xcb_key_symbols_t *symbols = xcb_key_symbols_alloc(m_connection);
    if (xcb_keycode_t *codes = xcb_key_symbols_get_keycode(symbols, keysymS)) {
        m_keycode = codes[0];
        std::free(codes);
    }
    xcb_key_symbols_free(symbols);
    if (m_keycode == 0 || m_keycode == XCB_NO_SYMBOL)
        return;

    for (const quint16 lock : {quint16(0), quint16(XCB_MOD_MASK_LOCK), quint16(XCB_MOD_MASK_2), locks}) {
        const quint16 set = modifiers | lock;
        const xcb_void_cookie_t cookie =
            xcb_grab_key_checked(m_connection, 1, m_root, set, m_keycode, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
        // Another program holding the combination is no failure of ours.
        if (xcb_generic_error_t *error = xcb_request_check(m_connection, cookie))
            std::free(error);
        else
            m_grabbed.append(set);
    }
    xcb_flush(m_connection);
    QCoreApplication::instance()->installNativeEventFilter(this);
}

XcbHotKey::~XcbHotKey()
{
    if (!m_connection)
        return;
    QCoreApplication::instance()->removeNativeEventFilter(this);
    for (const quint16 set : std::as_const(m_grabbed))
        xcb_ungrab_key(m_connection, m_keycode, m_root, set);
    xcb_flush(m_connection);
}

bool XcbHotKey::nativeEventFilter(const QByteArray &eventType, void *message, qintptr *)
{
    if (eventType != "xcb_generic_event_t" || m_grabbed.isEmpty())
        return false;
    const auto *event = static_cast<const xcb_generic_event_t *>(message);
    if ((event->response_type & ~0x80) != XCB_KEY_PRESS)
        return false;
    const auto *key = static_cast<const xcb_key_press_event_t *>(message);
    if (key->detail != m_keycode || (key->state & ~locks) != modifiers)
        return false;
    Q_EMIT pressed({});
    return true;
}

} // namespace quorvane
