#pragma once

#include "Result.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QList>
#include <QString>

#include <functional>
#include <optional>
#include <type_traits>

namespace quorvane {

// Where a decoder stands inside a document, for error messages. A path links to its
// parent on the caller's stack and is only spelled out when a failure names it, so that
// decoding a large document builds no strings.
class CodingPath
{
public:
    CodingPath() = default;

    [[nodiscard]] CodingPath key(QLatin1StringView name) const;
    [[nodiscard]] CodingPath key(const QString &name) const;
    [[nodiscard]] CodingPath index(qsizetype i) const;
    [[nodiscard]] QString toString() const;

private:
    enum class Step { root, latin1, text, index };

    const CodingPath *m_parent = nullptr;
    Step m_step = Step::root;
    QLatin1StringView m_latin1;
    QString m_text;
    qsizetype m_index = 0;
};

// Thrown inside decoders only; fromJson() turns it into a DecodeError.
struct DecodeFailure {
    QString path;
    QString reason;
};

// Codec<T>::decode(value, path) -> T, throwing DecodeFailure; Codec<T>::encode(T) -> QJsonValue.
// Records specialise it beside their declarations.
template <class T>
struct Codec;

namespace codec {
[[noreturn]] void fail(const CodingPath &path, const QString &reason);
[[noreturn]] void typeMismatch(const CodingPath &path, const char *expected, const QJsonValue &found);
QString typeName(const QJsonValue &value);

// Long arrays (a cache of thousands of bookings) are decoded in slices, by the calling thread
// and whichever threads of the global pool are free at the time.
[[nodiscard]] bool worthSlicing(qsizetype count);
// Calls work(from, to) over [0, count) slice by slice, some on other threads, and returns when
// all are done. A slice's exception is rethrown here; of several, the earliest slice's, so
// that the first failing element is the one reported, as it would be in a plain loop.
void forEachSlice(qsizetype count, const std::function<void(qsizetype from, qsizetype to)> &work);
} // namespace codec

template <>
struct Codec<QString> {
    static QString decode(const QJsonValue &v, const CodingPath &path);
    static QJsonValue encode(const QString &s) { return s; }
};

// Integers must be JSON numbers with a whole value; a number inside a text is a wrong type.
template <>
struct Codec<qint64> {
    static qint64 decode(const QJsonValue &v, const CodingPath &path);
    static QJsonValue encode(qint64 i) { return i; }
};

template <>
struct Codec<int> {
    static int decode(const QJsonValue &v, const CodingPath &path);
    static QJsonValue encode(int i) { return i; }
};

template <>
struct Codec<bool> {
    static bool decode(const QJsonValue &v, const CodingPath &path);
    static QJsonValue encode(bool b) { return b; }
};

// Instants: an ISO 8601 text with a zone on the way in, to the second in UTC on the way out.
template <>
struct Codec<QDateTime> {
    static QDateTime decode(const QJsonValue &v, const CodingPath &path);
    static QJsonValue encode(const QDateTime &d);
};

template <class T>
struct Codec<QList<T>> {
    static QList<T> decode(const QJsonValue &v, const CodingPath &path)
    {
        if (!v.isArray())
            codec::typeMismatch(path, "an array", v);
        const QJsonArray array = v.toArray();
        if constexpr (std::is_default_constructible_v<T>) {
            if (codec::worthSlicing(array.size())) {
                QList<T> out(array.size());
                T *items = out.data(); // no detaching while other threads write
                codec::forEachSlice(array.size(), [&](qsizetype from, qsizetype to) {
                    for (qsizetype i = from; i < to; ++i)
                        items[i] = Codec<T>::decode(array.at(i), path.index(i));
                });
                return out;
            }
        }
        QList<T> out;
        out.reserve(array.size());
        for (qsizetype i = 0; i < array.size(); ++i)
            out.append(Codec<T>::decode(array.at(i), path.index(i)));
        return out;
    }
    static QJsonValue encode(const QList<T> &list)
    {
        QJsonArray array;
        for (const T &item : list)
            array.append(Codec<T>::encode(item));
        return array;
    }
};

// Reads the fields of one JSON object under the three regimes.
class ObjectReader
{
public:
    ObjectReader(const QJsonValue &value, const CodingPath &path);

    // Strict: present, not null, of the right type.
    template <class T>
    [[nodiscard]] T required(QLatin1StringView key) const
    {
        const QJsonValue v = m_object.value(key);
        if (v.isUndefined())
            codec::fail(m_path.key(key), QStringLiteral("No value for required key \"%1\"").arg(key));
        if (v.isNull())
            codec::fail(m_path.key(key), QStringLiteral("Expected a value but found null"));
        return Codec<T>::decode(v, m_path.key(key));
    }

    // Strict optional: absent or null gives no value; a wrong type still fails.
    template <class T>
    [[nodiscard]] std::optional<T> optional(QLatin1StringView key) const
    {
        const QJsonValue v = m_object.value(key);
        if (v.isUndefined() || v.isNull())
            return std::nullopt;
        return Codec<T>::decode(v, m_path.key(key));
    }

    // Lenient: any failure at all gives the fallback, without trace.
    template <class T>
    [[nodiscard]] T lenient(QLatin1StringView key, T fallback) const
    {
        try {
            const QJsonValue v = m_object.value(key);
            if (v.isUndefined() || v.isNull())
                return fallback;
            return Codec<T>::decode(v, m_path.key(key));
        } catch (const DecodeFailure &) {
            return fallback;
        }
    }

    [[nodiscard]] const QJsonObject &object() const { return m_object; }
    [[nodiscard]] const CodingPath &path() const { return m_path; }

private:
    QJsonObject m_object;
    CodingPath m_path;
};

// Writes the fields of one JSON object; optional fields without a value are left out.
class ObjectWriter
{
public:
    template <class T>
    ObjectWriter &set(QLatin1StringView key, const T &value)
    {
        m_object.insert(key, Codec<T>::encode(value));
        return *this;
    }
    template <class T>
    ObjectWriter &set(QLatin1StringView key, const std::optional<T> &value)
    {
        if (value)
            m_object.insert(key, Codec<T>::encode(*value));
        return *this;
    }
    [[nodiscard]] QJsonObject object() const { return m_object; }

private:
    QJsonObject m_object;
};

template <class T>
[[nodiscard]] Result<T> fromJson(const QJsonValue &value)
{
    try {
        return Codec<T>::decode(value, CodingPath{});
    } catch (const DecodeFailure &failure) {
        return DecodeError{failure.path, failure.reason};
    }
}

template <class T>
[[nodiscard]] QJsonValue toJson(const T &value)
{
    return Codec<T>::encode(value);
}

} // namespace quorvane

// Declares the Codec of a record; the definitions live in the record's .cpp.
#define QUORVANE_DECLARE_CODEC(Type)                                                                                   \
    template <>                                                                                                        \
    struct Codec<Type> {                                                                                               \
        static Type decode(const QJsonValue &value, const CodingPath &path);                                           \
        static QJsonValue encode(const Type &value);                                                                   \
    };
