#pragma once

#include "Clock.h"
#include "Store.h"

namespace quorvane::sandbox {

// Browser-approved sign-in for a device: the device asks for a pair of codes, the person
// approves the short one in a browser, and the device's polling then gets a token.
// Codes and tokens come from the system's secure generator, never from a seeded one.
class DeviceFlow
{
public:
    static constexpr qint64 lifetimeSeconds = 600;

    struct Started {
        QString deviceCode;
        QString userCode;
    };

    enum class State { pending, approved, expired, unknown };
    struct Polled {
        State state = State::unknown;
        QString token; // only when approved
    };

    // autoApproveSeconds < 0: only a person approves.
    DeviceFlow(Store &store, Clock clock, int autoApproveSeconds = -1);

    Started start(const QString &label);
    // An approved grant is spent by the poll that collects its token.
    Polled poll(const QString &deviceCode);
    // The grant behind a user code, if it is still waiting; case and blanks don't matter.
    [[nodiscard]] std::optional<DeviceGrant> waiting(const QString &userCode);
    bool approve(const QString &userCode);

    // Tokens handed out here or given on the command line.
    QString issueToken(const QString &label);
    void provisionToken(const QString &token, const QString &label);
    [[nodiscard]] bool isValid(const QString &token) { return m_store.hasToken(token); }

private:
    [[nodiscard]] bool expired(const DeviceGrant &grant) const;

    Store &m_store;
    Clock m_clock;
    int m_autoApproveSeconds;
};

} // namespace quorvane::sandbox
