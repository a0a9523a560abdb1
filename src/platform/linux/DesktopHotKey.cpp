#include "linux/DesktopHotKey.h"

#include "linux/PortalHotKey.h"
#include "linux/XcbHotKey.h"

namespace quorvane {

std::unique_ptr<HotKey> makeDesktopHotKey(const QDBusConnection &session)
{
    if (xcb_connection_t *x11 = XcbHotKey::applicationConnection())
        return std::make_unique<XcbHotKey>(x11);
    if (session.isConnected() && PortalHotKey::available(session)) {
        auto portal = std::make_unique<PortalHotKey>(session);
        portal->start();
        return portal;
    }
    return nullptr;
}

} // namespace quorvane
