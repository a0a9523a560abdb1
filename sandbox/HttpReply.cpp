#include "HttpReply.h"

#include "JSON.h"

#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace quorvane::sandbox {

HttpReply HttpReply::json(const QJsonValue &value, int status)
{
    return jsonBytes(JSON::encode(value), status);
}

HttpReply HttpReply::jsonBytes(QByteArray bytes, int status)
{
    return HttpReply{status, "application/json", std::move(bytes), {}};
}

HttpReply HttpReply::error(int status, const QString &message)
{
    return json(QJsonObject{{u"error"_s, message}}, status);
}

HttpReply HttpReply::html(const QString &page, int status)
{
    return HttpReply{status, "text/html; charset=utf-8", page.toUtf8(), {}};
}

HttpReply HttpReply::redirect(const QString &location)
{
    HttpReply reply{303, "text/plain; charset=utf-8", "See " + location.toUtf8(), {}};
    reply.headers.append({"Location", location.toUtf8()});
    return reply;
}

} // namespace quorvane::sandbox
