#pragma once

#include <QObject>

namespace quorvane {

// Tells when the machine has come back from sleep, so stale data is reloaded at once.
class WakeMonitor : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;

Q_SIGNALS:
    void woke();
};

} // namespace quorvane
