#pragma once

#include "Codec.h"

#include <QByteArray>
#include <QJsonDocument>
#include <QJsonParseError>

// The shared encoder and decoder: keys sorted, dates to the second on the way out,
// dates with or without a fraction on the way in.
namespace quorvane::JSON {

// Compact, with object keys in sorted order.
[[nodiscard]] QByteArray encode(const QJsonValue &value);

template <class T>
[[nodiscard]] QByteArray encode(const T &record)
{
    return encode(toJson(record));
}

// Parses any JSON text (a bare value at the top too). Syntax errors become a DecodeError.
[[nodiscard]] Result<QJsonValue> parse(const QByteArray &bytes);

template <class T>
[[nodiscard]] Result<T> decode(const QByteArray &bytes)
{
    // JSON as this app writes it reads in one pass, straight into the records; anything else,
    // and every failure, goes through QJsonDocument, which judges and words it.
    if constexpr (ScanDecodable<T>) {
        if (const std::optional<JSONScan> scan = JSONScan::of(bytes)) {
            try {
                return Codec<T>::decode(scan->root(), CodingPath{});
            } catch (const ScanDeclined &) {
            } catch (const DecodeFailure &) {}
        }
    }
    Result<QJsonValue> value = parse(bytes);
    if (!value)
        return value.error();
    return fromJson<T>(*value);
}

} // namespace quorvane::JSON
