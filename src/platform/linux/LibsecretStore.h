#pragma once

#include "SecretStore.h"

namespace quorvane {

// The Secret Service (gnome-keyring, KWallet's bridge, KeePassXC) through libsecret's
// synchronous calls, in the default collection. Items carry two attributes, "service"
// and "account". There is no fallback to a file: without a store, there is no token.
class LibsecretStore : public SecretStore
{
public:
    std::optional<QByteArray> lookup(const QString &service, const QString &account) override;
    void remove(const QString &service, const QString &account) override;
    bool add(const QString &service, const QString &account, const QString &label, const QByteArray &secret) override;
};

} // namespace quorvane
