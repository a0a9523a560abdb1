#include "ISO.h"

namespace quorvane::ISO {

namespace {

// Reads `count` ASCII digits at `at`; -1 if any is not a digit.
int digits(const QString &text, qsizetype at, int count)
{
    int value = 0;
    for (int i = 0; i < count; ++i) {
        const char16_t c = text.at(at + i).unicode();
        if (c < u'0' || c > u'9')
            return -1;
        value = value * 10 + (c - u'0');
    }
    return value;
}

// Days from 1970-01-01 to a proleptic Gregorian date.
qint64 daysFromCivil(int year, int month, int day)
{
    year -= month <= 2;
    const qint64 era = (year >= 0 ? year : year - 399) / 400;
    const qint64 yearOfEra = year - era * 400;
    const qint64 dayOfYear = (153 * (month + (month > 2 ? -3 : 9)) + 2) / 5 + day - 1;
    const qint64 dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
    return era * 146097 + dayOfEra - 719468;
}

bool hasAt(const QString &text, qsizetype at, char16_t c)
{
    return at < text.size() && text.at(at).unicode() == c;
}

} // namespace

// Internet date-time, read by position: a fraction is optional, a zone is not. Every date of
// every record goes through here, so it avoids regular expressions and allocations.
std::optional<Instant> parse(const QString &text)
{
    if (text.size() < 20 || !hasAt(text, 4, u'-') || !hasAt(text, 7, u'-') || !hasAt(text, 10, u'T')
        || !hasAt(text, 13, u':') || !hasAt(text, 16, u':'))
        return std::nullopt;
    const int year = digits(text, 0, 4), month = digits(text, 5, 2), day = digits(text, 8, 2);
    const int hour = digits(text, 11, 2), minute = digits(text, 14, 2), second = digits(text, 17, 2);
    if (year < 0 || month < 0 || day < 0 || hour < 0 || minute < 0 || second < 0)
        return std::nullopt;

    qsizetype at = 19;
    int msec = 0;
    if (hasAt(text, at, u'.')) {
        const qsizetype first = ++at;
        int scale = 100;
        while (at < text.size() && text.at(at).isDigit() && text.at(at).unicode() < 128) {
            msec += scale * (text.at(at).unicode() - u'0');
            scale /= 10;
            ++at;
        }
        if (at == first)
            return std::nullopt;
    }

    int offsetSeconds = 0;
    if (hasAt(text, at, u'Z') && at + 1 == text.size()) {
        // UTC
    } else if ((hasAt(text, at, u'+') || hasAt(text, at, u'-')) && at + 6 == text.size() && hasAt(text, at + 3, u':')) {
        const int hours = digits(text, at + 1, 2), minutes = digits(text, at + 4, 2);
        if (hours < 0 || minutes < 0 || hours > 23 || minutes > 59)
            return std::nullopt;
        offsetSeconds = (hours * 60 + minutes) * 60 * (text.at(at) == u'-' ? -1 : 1);
    } else {
        return std::nullopt;
    }

    if (!QDate::isValid(year, month, day) || !QTime::isValid(hour, minute, second, msec))
        return std::nullopt;
    // Straight to milliseconds since the epoch: the calendar-aware constructors cost more
    // than the whole rest of decoding a booking.
    const qint64 seconds = daysFromCivil(year, month, day) * 86400 + hour * 3600 + minute * 60 + second - offsetSeconds;
    // Only what the writers can write back: a four-digit year in UTC as well.
    static const qint64 firstSecond = daysFromCivil(1, 1, 1) * 86400;
    static const qint64 pastLastSecond = daysFromCivil(10000, 1, 1) * 86400;
    if (seconds < firstSecond || seconds >= pastLastSecond)
        return std::nullopt;
    return QDateTime::fromMSecsSinceEpoch(seconds * 1000 + msec, Qt::UTC);
}

QString string(const Instant &instant)
{
    return instant.toUTC().toString(QStringLiteral("yyyy-MM-dd'T'HH:mm:ss.zzz'Z'"));
}

QString secondsString(const Instant &instant)
{
    return instant.toUTC().toString(QStringLiteral("yyyy-MM-dd'T'HH:mm:ss'Z'"));
}

} // namespace quorvane::ISO
