#pragma once

#include "Backend.h"
#include "Clock.h"
#include "DeviceFlow.h"
#include "FaultInjector.h"
#include "Router.h"
#include "SandboxConfig.h"
#include "Store.h"

#include <QObject>
#include <QRandomGenerator>

#include <memory>

namespace quorvane::sandbox {

class GuestSimulator;
class SandboxServer;

// One whole server: store, rules, routes and the listening socket on 127.0.0.1. The
// executable runs one; tests run them in-process with a clock they control.
class Sandbox : public QObject
{
    Q_OBJECT

public:
    explicit Sandbox(SandboxConfig config, Clock clock = systemClock(), QObject *parent = nullptr);
    ~Sandbox() override;

    // Opens the database, seeds it if it is empty, and listens.
    bool start(QString *error);

    [[nodiscard]] quint16 port() const { return m_port; }
    [[nodiscard]] QString baseUrl() const { return m_backend.baseUrl(); }
    [[nodiscard]] Store &store() { return m_store; }
    [[nodiscard]] Backend &backend() { return m_backend; }
    [[nodiscard]] DeviceFlow &devices() { return m_devices; }
    [[nodiscard]] FaultInjector &faults() { return m_faults; }
    [[nodiscard]] GuestSimulator *simulator() { return m_simulator; }

private:
    void seedIfEmpty();

    SandboxConfig m_config;
    Clock m_clock;
    QRandomGenerator m_random;
    Store m_store;
    Backend m_backend;
    DeviceFlow m_devices;
    FaultInjector m_faults;
    Router m_router;
    SandboxServer *m_server = nullptr;
    GuestSimulator *m_simulator = nullptr;
    quint16 m_port = 0;
};

} // namespace quorvane::sandbox
