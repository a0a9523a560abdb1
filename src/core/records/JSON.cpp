#include "JSON.h"

namespace quorvane::JSON {

QByteArray encode(const QJsonValue &value)
{
    // QJsonObject keeps its keys sorted, so documents come out in key order.
    if (value.isObject())
        return QJsonDocument(value.toObject()).toJson(QJsonDocument::Compact);
    if (value.isArray())
        return QJsonDocument(value.toArray()).toJson(QJsonDocument::Compact);
    const QByteArray wrapped = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return wrapped.mid(1, wrapped.size() - 2);
}

Result<QJsonValue> parse(const QByteArray &bytes)
{
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
    if (error.error == QJsonParseError::NoError) {
        if (document.isObject())
            return QJsonValue(document.object());
        return QJsonValue(document.array());
    }
    // A bare value at the top level (a text, a number) is valid JSON too.
    QJsonParseError wrappedError{};
    const QJsonDocument wrapped = QJsonDocument::fromJson('[' + bytes + ']', &wrappedError);
    if (wrappedError.error == QJsonParseError::NoError && wrapped.array().size() == 1)
        return wrapped.array().first();
    return DecodeError{QString(), QStringLiteral("The given data was not valid JSON: %1 at offset %2.")
                                      .arg(error.errorString())
                                      .arg(error.offset)};
}

} // namespace quorvane::JSON
