#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>
#include <QUrlQuery>

namespace quorvane::sandbox {

// One request as the handlers see it: a plain value, so it can outlive the socket's own
// request object when an answer is delayed.
struct HttpRequest {
    QByteArray method; // "GET", "POST", ...
    QString path;      // decoded, with its leading slash, without the query
    QUrlQuery query;
    QByteArray body;
    QList<QPair<QByteArray, QByteArray>> headers;
    QStringList captures; // the path segments matched by "*" in the route

    // Case-insensitive, as HTTP header names are.
    [[nodiscard]] QByteArray header(const QByteArray &name) const;
    // The token of an "Authorization: Bearer …" header, or empty.
    [[nodiscard]] QByteArray bearerToken() const;
    // The body as a JSON object; anything else is a 400.
    [[nodiscard]] QJsonObject jsonObject() const;
    // The body as an HTML form (application/x-www-form-urlencoded).
    [[nodiscard]] QUrlQuery form() const;
    [[nodiscard]] QString queryValue(const QString &key) const;
};

// Required fields of a JSON body, each failing as a 400 with the field's name.
namespace Body {
[[nodiscard]] QString text(const QJsonObject &body, const QString &key);
[[nodiscard]] bool boolean(const QJsonObject &body, const QString &key);
} // namespace Body

} // namespace quorvane::sandbox
