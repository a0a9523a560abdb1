#include "Router.h"

#include "Pages.h"
#include "RequestError.h"

using namespace Qt::StringLiterals;

namespace quorvane::sandbox {

namespace {

QStringList segmentsOf(const QString &path)
{
    return path.split(u'/', Qt::SkipEmptyParts);
}

// Machine paths answer in JSON and are never taken for a host's handle.
bool isMachinePath(const QStringList &segments)
{
    return !segments.isEmpty()
           && (segments.first() == u"sync" || segments.first() == u"auth" || segments.first() == u"sandbox");
}

} // namespace

void Router::add(const QByteArray &method, const QString &pattern, Access access, Handler handler)
{
    Route route{method, segmentsOf(pattern), 0, access, std::move(handler)};
    route.literals =
        int(std::count_if(route.segments.cbegin(), route.segments.cend(), [](const QString &s) { return s != u"*"; }));
    m_routes.append(std::move(route));
}

bool Router::matches(const Route &route, const QStringList &segments, QStringList *captures)
{
    if (route.segments.size() != segments.size())
        return false;
    captures->clear();
    for (qsizetype i = 0; i < segments.size(); ++i) {
        if (route.segments.at(i) == u"*")
            captures->append(segments.at(i));
        else if (route.segments.at(i) != segments.at(i))
            return false;
    }
    return true;
}

HttpReply Router::failure(Access access, int status, const QString &message)
{
    if (access == Access::page)
        return HttpReply::html(Pages::errorPage(status, message), status);
    return HttpReply::error(status, message);
}

HttpReply Router::dispatch(HttpRequest request) const
{
    const QStringList segments = segmentsOf(request.path);
    const bool machine = isMachinePath(segments);
    const Route *best = nullptr;
    bool pathKnown = false;
    int bestLiterals = -1;
    for (const Route &route : m_routes) {
        QStringList captures;
        if (!matches(route, segments, &captures) || route.literals < bestLiterals)
            continue;
        if (machine && route.segments.first() == u"*")
            continue;
        if (route.literals > bestLiterals)
            best = nullptr;
        bestLiterals = route.literals;
        pathKnown = true;
        if (route.method == request.method && !best) {
            best = &route;
            request.captures = captures;
        }
    }
    if (!best && pathKnown)
        return HttpReply::error(405, u"Method not allowed"_s);
    if (!best)
        return failure(machine ? Access::open : Access::page, 404, u"Not found"_s);
    if (best->access == Access::token && !(m_tokenCheck && m_tokenCheck(request.bearerToken())))
        return HttpReply::error(401, u"Missing or invalid token"_s);
    try {
        return best->handler(request);
    } catch (const RequestError &e) {
        return failure(best->access, e.status, e.message);
    }
}

} // namespace quorvane::sandbox
