#include "DeviceFlow.h"

#include "Ids.h"

using namespace Qt::StringLiterals;

namespace quorvane::sandbox {

namespace {

QString normalisedUserCode(const QString &code)
{
    QString out = code.trimmed().toUpper();
    out.remove(u' ');
    if (out.size() == 8 && !out.contains(u'-'))
        out.insert(4, u'-');
    return out;
}

} // namespace

DeviceFlow::DeviceFlow(Store &store, Clock clock, int autoApproveSeconds)
    : m_store(store)
    , m_clock(std::move(clock))
    , m_autoApproveSeconds(autoApproveSeconds)
{}

bool DeviceFlow::expired(const DeviceGrant &grant) const
{
    return grant.created.secsTo(m_clock()) >= lifetimeSeconds;
}

DeviceFlow::Started DeviceFlow::start(const QString &label)
{
    DeviceGrant grant;
    grant.deviceCode = Ids::hex(*QRandomGenerator::system(), 20);
    // User codes are short; draw again on the rare collision with a live one.
    do {
        grant.userCode = Ids::userCode(*QRandomGenerator::system());
    } while (m_store.deviceGrantByUserCode(grant.userCode));
    grant.label = label.trimmed().isEmpty() ? u"a computer"_s : label.trimmed().left(120);
    grant.created = m_clock();
    m_store.putDeviceGrant(grant);
    return {grant.deviceCode, grant.userCode};
}

DeviceFlow::Polled DeviceFlow::poll(const QString &deviceCode)
{
    const std::optional<DeviceGrant> grant = m_store.deviceGrant(deviceCode);
    if (!grant)
        return {State::unknown, {}};
    if (expired(*grant)) {
        m_store.removeDeviceGrant(grant->deviceCode);
        return {State::expired, {}};
    }
    const bool autoApproved = m_autoApproveSeconds >= 0 && grant->created.secsTo(m_clock()) >= m_autoApproveSeconds;
    if (!grant->approved && !autoApproved)
        return {State::pending, {}};
    m_store.removeDeviceGrant(grant->deviceCode);
    return {State::approved, issueToken(grant->label)};
}

std::optional<DeviceGrant> DeviceFlow::waiting(const QString &userCode)
{
    const std::optional<DeviceGrant> grant = m_store.deviceGrantByUserCode(normalisedUserCode(userCode));
    if (!grant || expired(*grant))
        return std::nullopt;
    return grant;
}

bool DeviceFlow::approve(const QString &userCode)
{
    std::optional<DeviceGrant> grant = waiting(userCode);
    if (!grant)
        return false;
    grant->approved = true;
    m_store.putDeviceGrant(*grant);
    return true;
}

QString DeviceFlow::issueToken(const QString &label)
{
    const QString token = u"qv_"_s + Ids::hex(*QRandomGenerator::system(), 24);
    m_store.addToken(token, label, m_clock());
    return token;
}

void DeviceFlow::provisionToken(const QString &token, const QString &label)
{
    m_store.addToken(token, label, m_clock());
}

} // namespace quorvane::sandbox
