#include "ShareFormatter.h"

#include "Formats.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>

namespace quorvane::ShareFormatter {

namespace {
struct Text {
    Q_DECLARE_TR_FUNCTIONS(ShareFormatter)
};

QString zoneName(const QString &timeZone, const QString &locale, const Instant &now)
{
    const bool daylight = Formats::isDaylightTime(timeZone, now);
    return Formats::zoneShortName(timeZone, daylight, locale).value_or(timeZone);
}

} // namespace

QString text(const QList<Slot> &slots, const QString &typeTitle, int minutes, const QString &link,
             const QString &timeZone, const QString &locale, const Instant &now)
{
    QList<Slot> sorted = slots;
    std::stable_sort(sorted.begin(), sorted.end(), [](const Slot &a, const Slot &b) { return a.start < b.start; });

    QStringList lines;
    lines.append(Text::tr("Here are a few times that work for a %1-minute %2 (%3):")
                     .arg(QString::number(minutes), typeTitle.toLower(), zoneName(timeZone, locale, now)));
    lines.append(QString());
    for (const Slot &slot : std::as_const(sorted))
        lines.append(QStringLiteral("• ")
                     + Formats::format(slot.start, QStringLiteral("EEEMMMdjmm"), locale, timeZone));
    lines.append(QString());
    lines.append(Text::tr("Grab one (or see more options) here: %1").arg(link));
    return lines.join(u'\n');
}

} // namespace quorvane::ShareFormatter
