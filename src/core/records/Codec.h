#pragma once

#include "JSONScan.h"
#include "Result.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QList>
#include <QString>

#include <concepts>
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

// Thrown inside decoders reading a JSONScan: the value is not one of the plain cases they read,
// and the full decoder is to judge it (and word whatever is wrong with it).
struct ScanDeclined {};

// Records that also decode straight from a JSONScan, with the same rules as from a QJsonValue.
template <class T>
concept ScanDecodable = requires(const JSONScan::Value &value, const CodingPath &path)
{
    {
        Codec<T>::decode(value, path)
        } -> std::same_as<T>;
};

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
    static QString decode(const JSONScan::Value &v, const CodingPath &path);
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
    static bool decode(const JSONScan::Value &v, const CodingPath &path);
    static QJsonValue encode(bool b) { return b; }
};

// Instants: an ISO 8601 text with a zone on the way in, to the second in UTC on the way out.
template <>
struct Codec<QDateTime> {
    static QDateTime decode(const QJsonValue &v, const CodingPath &path);
    static QDateTime decode(const JSONScan::Value &v, const CodingPath &path);
    static QJsonValue encode(const QDateTime &d);
};

template <class T>
struct Codec<QList<T>> {
    static QList<T> decode(const QJsonValue &v, const CodingPath &path)
    {
        if (!v.isArray())
            codec::typeMismatch(path, "an array", v);
        const QJsonArray array = v.toArray();
        return decodeEach(
            array.size(), [&array](qsizetype i) { return array.at(i); }, path);
    }
    static QList<T> decode(const JSONScan::Value &v,
                           const CodingPath &path) requires ScanDecodable<T> && std::is_default_constructible_v<T>
    {
        if (v.kind() != JSONScan::Kind::array)
            throw ScanDeclined{};
        const std::vector<JSONScan::Value> elements = v.elements();
        return decodeEach(
            qsizetype(elements.size()),
            [&elements](qsizetype i) -> const JSONScan::Value & { return elements[size_t(i)]; }, path);
    }
    // Each of `count` elements, `at(i)` the i-th; a long list in slices, by several threads.
    template <class At>
    static QList<T> decodeEach(qsizetype count, const At &at, const CodingPath &path)
    {
        if constexpr (std::is_default_constructible_v<T>) {
            if (codec::worthSlicing(count)) {
                QList<T> out(count);
                T *items = out.data(); // no detaching while other threads write
                codec::forEachSlice(count, [&](qsizetype from, qsizetype to) {
                    for (qsizetype i = from; i < to; ++i)
                        items[i] = Codec<T>::decode(at(i), path.index(i));
                });
                return out;
            }
        }
        QList<T> out;
        out.reserve(count);
        for (qsizetype i = 0; i < count; ++i)
            out.append(Codec<T>::decode(at(i), path.index(i)));
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

    // The member as it is, undefined when absent.
    [[nodiscard]] QJsonValue value(QLatin1StringView key) const { return m_object.value(key); }
    [[nodiscard]] const QJsonObject &object() const { return m_object; }
    [[nodiscard]] const CodingPath &path() const { return m_path; }

private:
    QJsonObject m_object;
    CodingPath m_path;
};

// ObjectReader's counterpart over a JSONScan, for the records that decode from one: it reads
// texts, instants, booleans and lists of such records itself and hands every other member to
// the member's QJsonValue decoder. Whatever would fail, or need wording, it declines.
class ScanObjectReader
{
public:
    ScanObjectReader(const JSONScan::Value &value, const CodingPath &path)
        : m_value(value)
        , m_path(path)
    {
        if (value.kind() != JSONScan::Kind::object)
            throw ScanDeclined{};
    }

    template <class T>
    [[nodiscard]] T required(QLatin1StringView key) const
    {
        const JSONScan::Value v = m_value.member(key);
        if (v.isMissing() || v.isNull())
            throw ScanDeclined{};
        return scanned<T>(v, m_path.key(key));
    }

    template <class T>
    [[nodiscard]] std::optional<T> optional(QLatin1StringView key) const
    {
        const JSONScan::Value v = m_value.member(key);
        if (v.isMissing() || v.isNull())
            return std::nullopt;
        return scanned<T>(v, m_path.key(key));
    }

    [[nodiscard]] QJsonValue value(QLatin1StringView key) const { return m_value.member(key).toJsonValue(); }
    [[nodiscard]] const CodingPath &path() const { return m_path; }

private:
    template <class T>
    static T scanned(const JSONScan::Value &v, const CodingPath &path)
    {
        if constexpr (ScanDecodable<T>)
            return Codec<T>::decode(v, path);
        else
            return Codec<T>::decode(v.toJsonValue(), path);
    }

    JSONScan::Value m_value;
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

// As QUORVANE_DECLARE_CODEC, for a record that also decodes straight from a JSONScan.
#define QUORVANE_DECLARE_SCANNED_CODEC(Type)                                                                           \
    template <>                                                                                                        \
    struct Codec<Type> {                                                                                               \
        static Type decode(const QJsonValue &value, const CodingPath &path);                                           \
        static Type decode(const JSONScan::Value &value, const CodingPath &path);                                      \
        static QJsonValue encode(const Type &value);                                                                   \
    };
