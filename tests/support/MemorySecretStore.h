#pragma once

#include "SecretStore.h"

#include <QHash>
#include <QPair>

namespace quorvane::test {

// A credential store in memory: for fixtures that must not touch the desktop's keyring.
class MemorySecretStore final : public SecretStore
{
public:
    [[nodiscard]] std::optional<QByteArray> lookup(const QString &service, const QString &account) override
    {
        const auto it = m_items.constFind({service, account});
        return it == m_items.cend() ? std::nullopt : std::optional<QByteArray>(*it);
    }
    void remove(const QString &service, const QString &account) override { m_items.remove({service, account}); }
    bool add(const QString &service, const QString &account, const QString &, const QByteArray &secret) override
    {
        m_items.insert({service, account}, secret);
        return true;
    }

private:
    QHash<QPair<QString, QString>, QByteArray> m_items;
};

} // namespace quorvane::test
