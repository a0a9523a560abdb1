#include "NLAvailability.h"

#include "AvailabilityMath.h"
#include "Decimal.h"

#include <QMap>
#include <QRegularExpression>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace quorvane::NLAvailability {

namespace {

struct DayKey {
    QLatin1StringView key;
    int weekday;
};

constexpr std::array<DayKey, 7> dayTable{{
    {QLatin1StringView("sun"), 1},
    {QLatin1StringView("mon"), 2},
    {QLatin1StringView("tue"), 3},
    {QLatin1StringView("wed"), 4},
    {QLatin1StringView("thu"), 5},
    {QLatin1StringView("fri"), 6},
    {QLatin1StringView("sat"), 7},
}};

// Unicode properties make \b, \s and \d Unicode-aware, as users type more than ASCII:
// a no-break space separates, an accented letter glued to "mon" is part of its word.
constexpr auto unicode = QRegularExpression::UseUnicodePropertiesOption;

const QRegularExpression &daySpan()
{
    static const QRegularExpression re(
        uR"(\b(sun|mon|tue|wed|thu|fri|sat)[a-z]*\s*(?:-|–|to|through|thru)\s*(sun|mon|tue|wed|thu|fri|sat))"_s,
        unicode);
    return re;
}

const QRegularExpression &timeSpan()
{
    static const QRegularExpression re(
        uR"((\d{1,2})(?::(\d\d))?\s*(am|pm)?\s*(?:-|–|to)\s*(\d{1,2})(?::(\d\d))?\s*(am|pm)?)"_s, unicode);
    return re;
}

// One "\b<key>" per day: only the front of the key needs a boundary, so "monday" counts.
const std::array<QRegularExpression, 7> &dayWords()
{
    static const std::array<QRegularExpression, 7> words = [] {
        std::array<QRegularExpression, 7> out;
        for (size_t i = 0; i < dayTable.size(); ++i)
            out[i] = QRegularExpression(QStringLiteral("\\b") + dayTable[i].key, unicode);
        return out;
    }();
    return words;
}

std::optional<int> weekdayOf(QStringView word)
{
    const QStringView key = word.left(3);
    for (const DayKey &day : dayTable)
        if (key == day.key)
            return day.weekday;
    return std::nullopt;
}

// "mon-thu" or "monday to friday": the days from the first to the last, never wrapping.
void appendSpan(const QString &matched, QList<int> &days)
{
    QList<int> named;
    qsizetype begin = -1;
    for (qsizetype i = 0; i <= matched.size(); ++i) {
        const bool letter = i < matched.size() && matched.at(i).isLetter();
        if (letter && begin < 0)
            begin = i;
        if (!letter && begin >= 0) {
            if (const auto weekday = weekdayOf(QStringView(matched).mid(begin, i - begin)))
                named.append(*weekday);
            begin = -1;
        }
    }
    if (named.isEmpty())
        return;
    for (int day = named.first(); day <= named.last(); ++day)
        days.append(day);
}

QList<int> daysOf(const QString &clause)
{
    QList<int> days;
    if (clause.contains(u"weekday"))
        days = {2, 3, 4, 5, 6};
    if (clause.contains(u"weekend"))
        days.append({1, 7});
    if (clause.contains(u"every day") || clause.contains(u"daily"))
        days = {1, 2, 3, 4, 5, 6, 7};

    if (const QRegularExpressionMatch span = daySpan().match(clause); span.hasMatch()) {
        appendSpan(span.captured(0), days);
        return days;
    }
    for (size_t i = 0; i < dayTable.size(); ++i)
        if (dayWords()[i].match(clause).hasMatch())
            days.append(dayTable[i].weekday);
    return days;
}

int numberOr(const QRegularExpressionMatch &match, int group, int fallback)
{
    const std::optional<qint64> value = Decimal::parse(match.capturedView(group));
    return value ? int(*value) : fallback;
}

TimeRange rangeOf(const QString &clause)
{
    TimeRange range{540, 1020};
    if (clause.contains(u"morning"))
        range = {540, 720};
    if (clause.contains(u"afternoon"))
        range = {780, 1020};
    if (clause.contains(u"evening"))
        range = {1080, 1260};

    const QRegularExpressionMatch time = timeSpan().match(clause);
    if (!time.hasMatch())
        return range;
    int sh = numberOr(time, 1, 9);
    int eh = numberOr(time, 4, 17);
    const int sm = numberOr(time, 2, 0);
    const int em = numberOr(time, 5, 0);
    const QStringView startSuffix = time.capturedView(3);
    const QStringView endSuffix = time.capturedView(6);

    if (startSuffix == u"am" && sh == 12)
        sh = 0;
    // A bare early hour means the afternoon: nobody opens at 5 in the morning by default.
    if ((startSuffix == u"pm" && sh < 12) || (startSuffix.isEmpty() && sh <= 6))
        sh += 12;
    if ((endSuffix == u"pm" && eh < 12) || (endSuffix.isEmpty() && (eh < 8 || eh * 60 + em <= sh * 60 + sm)))
        eh += 12;
    return {std::min(sh * 60 + sm, AvailabilityMath::dayMinutes), std::min(eh * 60 + em, AvailabilityMath::dayMinutes)};
}

} // namespace

QList<DayAvailability> parse(const QString &text)
{
    static const QRegularExpression separators(QStringLiteral("[,;\\n]"));
    const QStringList clauses = text.toLower().split(separators, Qt::SkipEmptyParts);

    QMap<int, QList<TimeRange>> byDay;
    for (const QString &clause : clauses) {
        QList<int> days = daysOf(clause);
        if (days.isEmpty())
            continue;
        const TimeRange range = rangeOf(clause);
        if (range.start >= range.end)
            continue;
        std::sort(days.begin(), days.end());
        days.erase(std::unique(days.begin(), days.end()), days.end());
        for (int day : std::as_const(days))
            byDay[day].append(range);
    }

    QList<DayAvailability> result;
    for (auto it = byDay.cbegin(); it != byDay.cend(); ++it)
        result.append(DayAvailability{it.key(), AvailabilityMath::normalize(it.value())});
    return result;
}

} // namespace quorvane::NLAvailability
