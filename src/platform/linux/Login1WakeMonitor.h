#pragma once

#include "WakeMonitor.h"

#include <QDBusConnection>

namespace quorvane {

// Wake-ups as logind announces them on the system bus. Without a system bus (containers,
// some CI machines) it simply never fires.
class Login1WakeMonitor final : public WakeMonitor
{
    Q_OBJECT
public:
    explicit Login1WakeMonitor(const QDBusConnection &bus, QObject *parent = nullptr);

private Q_SLOTS:
    void onPrepareForSleep(bool sleeping);
};

} // namespace quorvane
