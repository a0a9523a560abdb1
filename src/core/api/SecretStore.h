#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace quorvane {

// The operating system's credential store, reduced to what the token needs: items keyed
// by (service, account). Calls are synchronous and may block briefly.
class SecretStore
{
public:
    virtual ~SecretStore() = default;

    // The stored bytes, or none when there is no item or the store cannot be read
    // (no store running, locked, refused).
    [[nodiscard]] virtual std::optional<QByteArray> lookup(const QString &service, const QString &account) = 0;
    // Removes the item if there is one; failures are not reported.
    virtual void remove(const QString &service, const QString &account) = 0;
    // Adds an item; true when the store took it.
    virtual bool add(const QString &service, const QString &account, const QString &label,
                     const QByteArray &secret) = 0;
};

} // namespace quorvane
