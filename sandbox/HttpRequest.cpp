#include "HttpRequest.h"

#include "RequestError.h"

#include <QJsonDocument>
#include <QJsonParseError>

using namespace Qt::StringLiterals;

namespace quorvane::sandbox {

QByteArray HttpRequest::header(const QByteArray &name) const
{
    for (const auto &[key, value] : headers) {
        if (key.compare(name, Qt::CaseInsensitive) == 0)
            return value;
    }
    return {};
}

QByteArray HttpRequest::bearerToken() const
{
    const QByteArray value = header("Authorization").trimmed();
    static const QByteArray scheme = "bearer ";
    if (value.size() <= scheme.size() || value.left(scheme.size()).toLower() != scheme)
        return {};
    return value.mid(scheme.size()).trimmed();
}

QJsonObject HttpRequest::jsonObject() const
{
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(body, &error);
    if (error.error != QJsonParseError::NoError || !document.isObject())
        throw RequestError{400, u"The body must be a JSON object"_s};
    return document.object();
}

QUrlQuery HttpRequest::form() const
{
    // Browsers encode blanks as '+', which QUrlQuery leaves alone.
    QByteArray encoded = body;
    encoded.replace('+', ' ');
    return QUrlQuery(QString::fromUtf8(encoded));
}

QString HttpRequest::queryValue(const QString &key) const
{
    return query.queryItemValue(key, QUrl::FullyDecoded);
}

namespace Body {

QString text(const QJsonObject &body, const QString &key)
{
    const QJsonValue value = body.value(key);
    if (!value.isString())
        throw RequestError{400, u"\"%1\" must be a text"_s.arg(key)};
    return value.toString();
}

bool boolean(const QJsonObject &body, const QString &key)
{
    const QJsonValue value = body.value(key);
    if (!value.isBool())
        throw RequestError{400, u"\"%1\" must be true or false"_s.arg(key)};
    return value.toBool();
}

} // namespace Body

} // namespace quorvane::sandbox
