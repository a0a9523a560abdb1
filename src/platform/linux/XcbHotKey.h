#pragma once

#include "HotKey.h"

#include <QAbstractNativeEventFilter>
#include <QList>

struct xcb_connection_t;

namespace quorvane {

// The hot key on X11: a passive grab of S with Ctrl, Alt and Super on the root window, also
// with Caps Lock and Num Lock on, so either lock leaves the key working.
class XcbHotKey final : public HotKey, public QAbstractNativeEventFilter
{
    Q_OBJECT

public:
    // `connection` is the application's own X11 connection; it must outlive this.
    explicit XcbHotKey(xcb_connection_t *connection, QObject *parent = nullptr);
    ~XcbHotKey() override;

    // The application's X11 connection, or null when it runs on another platform (offscreen
    // offers the interface with no connection behind it).
    [[nodiscard]] static xcb_connection_t *applicationConnection();

    [[nodiscard]] bool isRegistered() const override { return !m_grabbed.isEmpty(); }
    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

private:
    xcb_connection_t *m_connection;
    quint32 m_root = 0;
    quint8 m_keycode = 0;
    QList<quint16> m_grabbed; // the modifier sets held
};

} // namespace quorvane
