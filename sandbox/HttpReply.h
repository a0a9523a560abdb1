#pragma once

#include <QByteArray>
#include <QJsonValue>
#include <QList>
#include <QPair>
#include <QString>

namespace quorvane::sandbox {

// What a handler answers; the server writes it to the socket.
struct HttpReply {
    int status = 200;
    QByteArray contentType;
    QByteArray body;
    QList<QPair<QByteArray, QByteArray>> headers;

    // Through the shared encoder, so bodies match the client's own encoding byte for byte.
    static HttpReply json(const QJsonValue &value, int status = 200);
    static HttpReply jsonBytes(QByteArray bytes, int status = 200);
    static HttpReply error(int status, const QString &message);
    static HttpReply html(const QString &page, int status = 200);
    // 303, so a form POST lands on a GET.
    static HttpReply redirect(const QString &location);
};

} // namespace quorvane::sandbox
