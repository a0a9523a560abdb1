#include "Countdown.h"

#include <QCoreApplication>

namespace quorvane::Countdown {

namespace {
struct Text {
    Q_DECLARE_TR_FUNCTIONS(Countdown)
};
} // namespace

QString shortText(const Instant &until, const Instant &now)
{
    // Integer division truncates toward zero, so 0.9 s left is still "now".
    const qint64 s = now.msecsTo(until) / 1000;
    if (s <= 0)
        return Text::tr("now");
    const qint64 m = (s + 59) / 60;
    if (m < 60)
        return Text::tr("in %1m").arg(m);
    if (m < 1440) {
        const qint64 h = m / 60;
        const qint64 r = m % 60;
        return r == 0 ? Text::tr("in %1h").arg(h) : Text::tr("in %1h %2m").arg(h).arg(r);
    }
    return Text::tr("in %1d").arg(m / 1440);
}

std::optional<QString> menuTitle(const std::optional<Booking> &next, const Instant &now, qint64 horizonSeconds)
{
    if (!next || now.msecsTo(next->start) > horizonSeconds * 1000 || next->end <= now)
        return std::nullopt;
    const QStringList words = next->name.split(u' ', Qt::SkipEmptyParts);
    const QString first = words.isEmpty() ? next->name : words.first();
    if (next->start <= now)
        return Text::tr("Now: %1").arg(first);
    return QStringLiteral("%1 %2").arg(first, shortText(next->start, now));
}

} // namespace quorvane::Countdown
