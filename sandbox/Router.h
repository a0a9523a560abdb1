#pragma once

#include "HttpReply.h"
#include "HttpRequest.h"

#include <functional>

namespace quorvane::sandbox {

// Maps method and path to a handler. Patterns are paths whose "*" segments match any one
// segment and are passed on as captures; a pattern with more literal segments wins, so
// "/sync/me" is never taken for "/{handle}/{slug}".
class Router
{
public:
    using Handler = std::function<HttpReply(const HttpRequest &)>;
    using TokenCheck = std::function<bool(const QByteArray &token)>;

    enum class Access {
        open,  // anyone, answers JSON
        token, // a valid bearer token, else 401 JSON
        page,  // anyone, answers and fails as HTML
    };

    void add(const QByteArray &method, const QString &pattern, Access access, Handler handler);
    void setTokenCheck(TokenCheck check) { m_tokenCheck = std::move(check); }

    // Never throws: failures of handlers become their error replies.
    [[nodiscard]] HttpReply dispatch(HttpRequest request) const;

private:
    struct Route {
        QByteArray method;
        QStringList segments;
        int literals = 0;
        Access access = Access::open;
        Handler handler;
    };

    [[nodiscard]] static bool matches(const Route &route, const QStringList &segments, QStringList *captures);
    [[nodiscard]] static HttpReply failure(Access access, int status, const QString &message);

    QList<Route> m_routes;
    TokenCheck m_tokenCheck;
};

} // namespace quorvane::sandbox
