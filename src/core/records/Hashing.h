#pragma once

#include <QHashFunctions>

#include <optional>

namespace quorvane {

template <class T>
size_t hashOne(const T &value)
{
    using ::qHash;
    return qHash(value, size_t(0));
}

template <class T>
size_t hashOne(const std::optional<T> &value)
{
    return value ? hashOne(*value) ^ size_t(0x51ed27) : size_t(0x2545f491);
}

// Combines the hashes of all fields of a record.
template <class... Fields>
size_t hashFields(size_t seed, const Fields &...fields)
{
    ((seed ^= hashOne(fields) + size_t(0x9e3779b97f4a7c15ULL) + (seed << 6) + (seed >> 2)), ...);
    return seed;
}

} // namespace quorvane
