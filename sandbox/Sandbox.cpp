#include "Sandbox.h"

#include "ApiRoutes.h"
#include "ControlRoutes.h"
#include "DemoData.h"
#include "GuestSimulator.h"
#include "PageRoutes.h"
#include "SandboxServer.h"
#include "UpdateFeed.h"

#include <cstdio>

using namespace Qt::StringLiterals;

namespace quorvane::sandbox {

namespace {

quint32 seedOf(const SandboxConfig &config)
{
    return config.seed ? *config.seed : QRandomGenerator::system()->generate();
}

void logLine(const QString &line)
{
    std::fprintf(stderr, "%s\n", qPrintable(line));
    std::fflush(stderr);
}

} // namespace

Sandbox::Sandbox(SandboxConfig config, Clock clock, QObject *parent)
    : QObject(parent)
    , m_config(std::move(config))
    , m_clock(std::move(clock))
    , m_random(seedOf(m_config))
    , m_backend(m_store, m_clock, m_random)
    , m_devices(m_store, m_clock, m_config.autoApproveSeconds)
{}

Sandbox::~Sandbox() = default;

void Sandbox::seedIfEmpty()
{
    // A database that already holds an account is never reseeded: restarts keep their state.
    if (m_store.hasAccount())
        return;
    if (m_config.demo)
        DemoData::seed(m_store, m_clock(), m_random, DemoData::machineZone());
    else
        DemoData::seedEmpty(m_store, DemoData::machineZone());
}

bool Sandbox::start(QString *error)
{
    if (!m_store.open(m_config.database, error))
        return false;
    seedIfEmpty();
    for (const QString &token : std::as_const(m_config.tokens))
        m_devices.provisionToken(token, u"command line"_s);

    ApiRoutes::install(m_router, m_backend, m_devices);
    PageRoutes::install(m_router, m_backend, m_devices);
    UpdateFeed::install(m_router, [this] { return m_backend.baseUrl(); });
    if (m_config.testControls)
        ControlRoutes::install(m_router, m_backend, m_faults);

    m_server = new SandboxServer(m_router, m_faults, this);
    if (m_config.logRequests)
        m_server->setLog(logLine);
    m_port = m_server->listenGuarded(QHostAddress::LocalHost, m_config.port);
    if (m_port == 0) {
        *error = u"Couldn't listen on 127.0.0.1:%1"_s.arg(m_config.port);
        return false;
    }
    m_backend.setBaseUrl(u"http://127.0.0.1:%1"_s.arg(m_port));
    if (m_config.simulate) {
        m_simulator = new GuestSimulator(m_backend, m_config.simulateMinSeconds, m_config.simulateMaxSeconds, this);
        if (m_config.logRequests)
            connect(m_simulator, &GuestSimulator::acted, this,
                    [](const QString &what) { logLine(u"a guest "_s + what); });
        m_simulator->start();
    }
    return true;
}

} // namespace quorvane::sandbox
