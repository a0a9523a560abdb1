#pragma once

#include "Codec.h"
#include "Hashing.h"

namespace quorvane {

// The signed-in account. Its id is a number, unlike every other id.
struct Account {
    struct Google {
        bool connected = false;
        std::optional<QString> email;
        std::optional<QString> lastError;
        bool operator==(const Google &) const = default;
    };
    struct Link {
        QString title;
        int minutes = 0;
        QString url;
        bool operator==(const Link &) const = default;
    };

    qint64 id = 0;
    QString email;
    std::optional<QString> name;
    std::optional<QString> handle;
    std::optional<QString> base;
    std::optional<Google> google;
    std::optional<QList<Link>> links;

    bool operator==(const Account &) const = default;
};

inline size_t qHash(const Account::Google &g, size_t seed = 0)
{
    return hashFields(seed, g.connected, g.email, g.lastError);
}
inline size_t qHash(const Account::Link &l, size_t seed = 0)
{
    return hashFields(seed, l.title, l.minutes, l.url);
}
inline size_t qHash(const Account &a, size_t seed = 0)
{
    return hashFields(seed, a.id, a.email, a.name, a.handle, a.base, a.google, a.links);
}

QUORVANE_DECLARE_CODEC(Account::Google)
QUORVANE_DECLARE_CODEC(Account::Link)
QUORVANE_DECLARE_CODEC(Account)

} // namespace quorvane
