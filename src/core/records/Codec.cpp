#include "Codec.h"

#include "ISO.h"

#include <QThread>
#include <QThreadPool>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <exception>
#include <limits>
#include <memory>
#include <semaphore>
#include <vector>

namespace quorvane {

CodingPath CodingPath::key(QLatin1StringView name) const
{
    CodingPath next;
    next.m_parent = this;
    next.m_step = Step::latin1;
    next.m_latin1 = name;
    return next;
}

CodingPath CodingPath::key(const QString &name) const
{
    CodingPath next;
    next.m_parent = this;
    next.m_step = Step::text;
    next.m_text = name;
    return next;
}

CodingPath CodingPath::index(qsizetype i) const
{
    CodingPath next;
    next.m_parent = this;
    next.m_step = Step::index;
    next.m_index = i;
    return next;
}

QString CodingPath::toString() const
{
    QString prefix = m_parent ? m_parent->toString() : QString();
    switch (m_step) {
    case Step::root:
        return prefix;
    case Step::index:
        return prefix + u'[' + QString::number(m_index) + u']';
    case Step::latin1:
        return prefix.isEmpty() ? QString(m_latin1) : prefix + u'.' + m_latin1;
    case Step::text:
        return prefix.isEmpty() ? m_text : prefix + u'.' + m_text;
    }
    return prefix;
}

namespace codec {

void fail(const CodingPath &path, const QString &reason)
{
    throw DecodeFailure{path.toString(), reason};
}

QString typeName(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::Null:
        return QStringLiteral("null");
    case QJsonValue::Bool:
        return QStringLiteral("a boolean");
    case QJsonValue::Double:
        return QStringLiteral("a number");
    case QJsonValue::String:
        return QStringLiteral("a string");
    case QJsonValue::Array:
        return QStringLiteral("an array");
    case QJsonValue::Object:
        return QStringLiteral("an object");
    case QJsonValue::Undefined:
        break;
    }
    return QStringLiteral("nothing");
}

void typeMismatch(const CodingPath &path, const char *expected, const QJsonValue &found)
{
    fail(path, QStringLiteral("Expected %1 but found %2 instead.").arg(QLatin1StringView(expected), typeName(found)));
}

namespace {
constexpr qsizetype sliceLength = 512;
} // namespace

bool worthSlicing(qsizetype count)
{
    return count >= 2 * sliceLength && QThread::idealThreadCount() > 1;
}

void forEachSlice(qsizetype count, const std::function<void(qsizetype from, qsizetype to)> &work)
{
    // Held by every participant: a helper may still be returning from release() when the
    // caller, woken, leaves this function.
    struct Shared {
        explicit Shared(qsizetype slices)
            : failures(static_cast<size_t>(slices))
        {}
        std::atomic<qsizetype> next{0};
        std::vector<std::exception_ptr> failures;
        std::counting_semaphore<> finished{0};
    };
    const qsizetype slices = (count + sliceLength - 1) / sliceLength;
    const auto shared = std::make_shared<Shared>(slices);
    // Every participant takes the next slice until none is left, so the calling thread alone
    // finishes the job when the pool has no thread to spare (or is the caller's own pool).
    const auto drain = [count, slices, &work](Shared &state) {
        for (qsizetype slice = state.next++; slice < slices; slice = state.next++) {
            try {
                work(slice * sliceLength, std::min(count, (slice + 1) * sliceLength));
            } catch (...) {
                state.failures[size_t(slice)] = std::current_exception();
            }
        }
    };
    int helpers = 0;
    const qsizetype wanted = std::min<qsizetype>(QThread::idealThreadCount() - 1, slices - 1);
    for (qsizetype h = 0; h < wanted; ++h) {
        if (QThreadPool::globalInstance()->tryStart([shared, drain] {
                drain(*shared);
                shared->finished.release();
            }))
            ++helpers;
    }
    drain(*shared);
    for (int h = 0; h < helpers; ++h)
        shared->finished.acquire();
    for (const std::exception_ptr &failure : shared->failures) {
        if (failure)
            std::rethrow_exception(failure);
    }
}

} // namespace codec

QString Codec<QString>::decode(const QJsonValue &v, const CodingPath &path)
{
    if (!v.isString())
        codec::typeMismatch(path, "a string", v);
    return v.toString();
}

QString Codec<QString>::decode(const JSONScan::Value &v, const CodingPath &)
{
    if (v.kind() != JSONScan::Kind::text)
        throw ScanDeclined{};
    return v.text();
}

qint64 Codec<qint64>::decode(const QJsonValue &v, const CodingPath &path)
{
    if (!v.isDouble())
        codec::typeMismatch(path, "an integer", v);
    const double d = v.toDouble();
    // 2^63 itself is out of range, hence the strict comparison.
    if (!std::isfinite(d) || std::trunc(d) != d || d < -9223372036854775808.0 || d >= 9223372036854775808.0)
        codec::fail(path, QStringLiteral("Parsed JSON number <%1> does not fit in Int.").arg(d));
    return v.toInteger(qint64(d));
}

int Codec<int>::decode(const QJsonValue &v, const CodingPath &path)
{
    const qint64 wide = Codec<qint64>::decode(v, path);
    if (wide < std::numeric_limits<int>::min() || wide > std::numeric_limits<int>::max())
        codec::fail(path, QStringLiteral("Parsed JSON number <%1> does not fit in Int.").arg(wide));
    return int(wide);
}

bool Codec<bool>::decode(const QJsonValue &v, const CodingPath &path)
{
    if (!v.isBool())
        codec::typeMismatch(path, "a boolean", v);
    return v.toBool();
}

bool Codec<bool>::decode(const JSONScan::Value &v, const CodingPath &)
{
    if (v.kind() != JSONScan::Kind::boolean)
        throw ScanDeclined{};
    return v.boolean();
}

QDateTime Codec<QDateTime>::decode(const QJsonValue &v, const CodingPath &path)
{
    const QString text = Codec<QString>::decode(v, path);
    std::optional<Instant> instant = ISO::parse(text);
    if (!instant)
        codec::fail(path, QStringLiteral("Bad date %1").arg(text));
    return *instant;
}

QDateTime Codec<QDateTime>::decode(const JSONScan::Value &v, const CodingPath &path)
{
    std::optional<Instant> instant = ISO::parse(Codec<QString>::decode(v, path));
    if (!instant)
        throw ScanDeclined{};
    return *instant;
}

QJsonValue Codec<QDateTime>::encode(const QDateTime &d)
{
    return ISO::secondsString(d);
}

ObjectReader::ObjectReader(const QJsonValue &value, const CodingPath &path)
    : m_path(path)
{
    if (!value.isObject())
        codec::typeMismatch(path, "an object", value);
    m_object = value.toObject();
}

} // namespace quorvane
