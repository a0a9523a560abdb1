#pragma once

#include "SecretStore.h"

#include <QString>

#include <optional>

namespace quorvane {

// The bearer token in the credential store, and nowhere else. No cache: every read goes
// to the store, so a token written by a sign-in counts at the next request.
class Keychain
{
public:
    static inline const QString service = QStringLiteral("com.peldrachen.quorvane.sync");
    static inline const QString apiAccount = QStringLiteral("api-token");
    // Written by earlier versions of the client; read and erased, never written with a token.
    static inline const QString legacyAccount = QStringLiteral("sync-token");
    static inline const QString label = QStringLiteral("Quorvane account token");

    explicit Keychain(SecretStore &store)
        : m_store(&store)
    {}

    // The token under "api-token", else the one under "sync-token".
    [[nodiscard]] std::optional<QString> token() const;
    // An empty or unreadable item reads as none.
    [[nodiscard]] std::optional<QString> read(const QString &account) const;
    // Replaces the item. An empty value only erases it, and that counts as success.
    bool write(const QString &value, const QString &account = apiAccount) const;
    // Erases both items.
    void signOut() const;

private:
    SecretStore *m_store;
};

} // namespace quorvane
