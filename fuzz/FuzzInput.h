#pragma once

#include <QByteArray>
#include <QList>

#include <cstdint>
#include <cstdio>
#include <cstdlib>

// What the fuzz targets share: turning libFuzzer's bytes into inputs, and failing loudly.
namespace quorvane::fuzz {

inline QByteArray bytes(const uint8_t *data, size_t size)
{
    return QByteArray(reinterpret_cast<const char *>(data), qsizetype(size));
}

// Cuts at NUL bytes into exactly `count` parts: the last keeps the rest, missing ones are empty.
// JSON and HTTP text never hold a NUL, so seeds stay readable.
inline QList<QByteArray> split(const QByteArray &input, qsizetype count)
{
    QList<QByteArray> parts;
    qsizetype from = 0;
    while (parts.size() + 1 < count) {
        const qsizetype at = input.indexOf('\0', from);
        if (at < 0)
            break;
        parts.append(input.mid(from, at - from));
        from = at + 1;
    }
    parts.append(input.mid(from));
    while (parts.size() < count)
        parts.append(QByteArray());
    return parts;
}

// A broken promise: libFuzzer keeps the input that led here as a crash.
[[noreturn]] inline void fail(const char *what, const QByteArray &detail = {})
{
    std::fprintf(stderr, "%s\n%.*s\n", what, int(detail.size()), detail.constData());
    std::abort();
}

} // namespace quorvane::fuzz
