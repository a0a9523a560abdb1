#include "Formats.h"

#include "ICUBridge.h"

#include <QHash>
#include <QMutex>

#include <cstdlib>

#include <unicode/dtfmtsym.h>
#include <unicode/dtptngen.h>
#include <unicode/numfmt.h>
#include <unicode/reldatefmt.h>
#include <unicode/smpdtfmt.h>

namespace quorvane::Formats {

namespace {

using ICUBridge::fromICU;
using ICUBridge::toICU;

// Building a pattern generator or a formatter costs far more than formatting with one, and
// lists format hundreds of rows with the same few settings.
icu::SimpleDateFormat *cachedFormatter(const QString &skeleton, const QString &locale, const QString &zone)
{
    thread_local QHash<QString, std::shared_ptr<icu::SimpleDateFormat>> cache;
    const QString key = skeleton + u'|' + locale + u'|' + zone;
    if (auto found = cache.constFind(key); found != cache.cend())
        return found->get();

    UErrorCode status = U_ZERO_ERROR;
    const icu::Locale icuLocale = ICUBridge::locale(locale);
    auto formatter = std::make_shared<icu::SimpleDateFormat>(toICU(pattern(skeleton, locale)), icuLocale, status);
    if (U_FAILURE(status))
        return nullptr;
    formatter->adoptTimeZone(ICUBridge::zone(zone).release());
    if (cache.size() >= 64)
        cache.clear();
    cache.insert(key, formatter);
    return formatter.get();
}

UDate toUDate(const Instant &instant)
{
    return UDate(instant.toMSecsSinceEpoch());
}

} // namespace

// A pattern generator takes milliseconds to build, so each locale gets one for the process,
// shared between threads behind a lock (a generator is not safe to use from two at once).
QString pattern(const QString &skeleton, const QString &locale)
{
    static QMutex lock;
    static QHash<QString, std::shared_ptr<icu::DateTimePatternGenerator>> generators;
    const QMutexLocker locked(&lock);
    std::shared_ptr<icu::DateTimePatternGenerator> &generator = generators[locale];
    UErrorCode status = U_ZERO_ERROR;
    if (!generator) {
        generator.reset(icu::DateTimePatternGenerator::createInstance(ICUBridge::locale(locale), status));
        if (U_FAILURE(status) || !generator) {
            generators.remove(locale);
            return skeleton;
        }
    }
    const icu::UnicodeString best = generator->getBestPattern(toICU(skeleton), status);
    return U_SUCCESS(status) ? fromICU(best) : skeleton;
}

QString format(const Instant &instant, const QString &skeleton, const QString &locale, const QString &zone)
{
    icu::SimpleDateFormat *formatter = cachedFormatter(skeleton, locale, zone);
    if (!formatter || !instant.isValid())
        return {};
    icu::UnicodeString out;
    formatter->format(toUDate(instant), out);
    return fromICU(out);
}

QString mediumDateShortTime(const Instant &instant, const QString &locale, const QString &zone)
{
    thread_local QHash<QString, std::shared_ptr<icu::DateFormat>> cache;
    const QString key = locale + u'|' + zone;
    std::shared_ptr<icu::DateFormat> &formatter = cache[key];
    if (!formatter) {
        formatter.reset(icu::DateFormat::createDateTimeInstance(icu::DateFormat::kMedium, icu::DateFormat::kShort,
                                                                ICUBridge::locale(locale)));
        if (!formatter) {
            cache.remove(key);
            return {};
        }
        formatter->adoptTimeZone(ICUBridge::zone(zone).release());
    }
    if (!instant.isValid())
        return {};
    icu::UnicodeString out;
    formatter->format(toUDate(instant), out);
    return fromICU(out);
}

bool isKnownZone(const QString &zone)
{
    return !ICUBridge::isUnknown(*ICUBridge::zone(zone));
}

bool isDaylightTime(const QString &zone, const Instant &instant)
{
    UErrorCode status = U_ZERO_ERROR;
    int32_t raw = 0;
    int32_t dst = 0;
    ICUBridge::zone(zone)->getOffset(toUDate(instant), false, raw, dst, status);
    return U_SUCCESS(status) && dst != 0;
}

std::optional<QString> zoneShortName(const QString &zone, bool daylight, const QString &locale)
{
    const std::unique_ptr<icu::TimeZone> tz = ICUBridge::zone(zone);
    if (ICUBridge::isUnknown(*tz))
        return std::nullopt;
    icu::UnicodeString name;
    tz->getDisplayName(daylight, icu::TimeZone::SHORT, ICUBridge::locale(locale), name);
    if (name.isEmpty())
        return std::nullopt;
    return fromICU(name);
}

QString relativeDay(int days, const QString &locale, Capitalization capitalization)
{
    const UDisplayContext context = capitalization == Capitalization::startOfSentence
                                        ? UDISPCTX_CAPITALIZATION_FOR_BEGINNING_OF_SENTENCE
                                        : UDISPCTX_CAPITALIZATION_FOR_MIDDLE_OF_SENTENCE;
    UErrorCode status = U_ZERO_ERROR;
    icu::RelativeDateTimeFormatter formatter(ICUBridge::locale(locale), nullptr, UDAT_STYLE_LONG, context, status);
    if (U_FAILURE(status))
        return {};
    icu::UnicodeString out;
    formatter.format(double(days), UDAT_REL_UNIT_DAY, out, status);
    return U_SUCCESS(status) ? fromICU(out) : QString();
}

QString relativeTime(const Instant &then, const Instant &now, const QString &locale)
{
    struct Unit {
        qint64 seconds;
        URelativeDateTimeUnit unit;
    };
    // Months and years as their mean lengths: "Booked 2 months ago" needs no calendar.
    static constexpr Unit units[] = {
        {365 * 86400 + 20952, UDAT_REL_UNIT_YEAR},
        {30 * 86400 + 37746, UDAT_REL_UNIT_MONTH},
        {7 * 86400, UDAT_REL_UNIT_WEEK},
        {86400, UDAT_REL_UNIT_DAY},
        {3600, UDAT_REL_UNIT_HOUR},
        {60, UDAT_REL_UNIT_MINUTE},
    };
    const qint64 difference = now.secsTo(then);
    Unit chosen{1, UDAT_REL_UNIT_SECOND};
    for (const Unit &unit : units) {
        if (std::abs(difference) >= unit.seconds) {
            chosen = unit;
            break;
        }
    }
    UErrorCode status = U_ZERO_ERROR;
    icu::RelativeDateTimeFormatter formatter(ICUBridge::locale(locale), nullptr, UDAT_STYLE_LONG,
                                             UDISPCTX_CAPITALIZATION_FOR_MIDDLE_OF_SENTENCE, status);
    if (U_FAILURE(status))
        return {};
    icu::UnicodeString out;
    formatter.format(double(difference / chosen.seconds), chosen.unit, out, status);
    return U_SUCCESS(status) ? fromICU(out) : QString();
}

QString percent(double share, const QString &locale)
{
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::NumberFormat> formatter(
        icu::NumberFormat::createPercentInstance(ICUBridge::locale(locale), status));
    if (U_FAILURE(status) || !formatter)
        return {};
    formatter->setMaximumFractionDigits(0);
    icu::UnicodeString out;
    formatter->format(share, out);
    return fromICU(out);
}

QStringList weekdaySymbols(const QString &locale, WeekdayWidth width, bool standalone)
{
    UErrorCode status = U_ZERO_ERROR;
    const icu::DateFormatSymbols symbols(ICUBridge::locale(locale), status);
    if (U_FAILURE(status))
        return {};
    const auto icuWidth = width == WeekdayWidth::narrow        ? icu::DateFormatSymbols::NARROW
                          : width == WeekdayWidth::abbreviated ? icu::DateFormatSymbols::ABBREVIATED
                                                               : icu::DateFormatSymbols::WIDE;
    const auto context = standalone ? icu::DateFormatSymbols::STANDALONE : icu::DateFormatSymbols::FORMAT;
    int32_t count = 0;
    const icu::UnicodeString *names = symbols.getWeekdays(count, context, icuWidth);
    QStringList out;
    // ICU's array is indexed by UCAL_SUNDAY (1) .. UCAL_SATURDAY (7); slot 0 is empty.
    for (int32_t day = UCAL_SUNDAY; day <= UCAL_SATURDAY && day < count; ++day)
        out.append(fromICU(names[day]));
    return out;
}

} // namespace quorvane::Formats
