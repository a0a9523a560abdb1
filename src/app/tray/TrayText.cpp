#include "tray/TrayText.h"

#include "Countdown.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace quorvane::TrayText {

namespace {
struct Text {
    Q_DECLARE_TR_FUNCTIONS(TrayText)
};
} // namespace

std::optional<QString> title(const std::optional<Booking> &next, const Instant &now, bool showsNext)
{
    if (!showsNext)
        return std::nullopt;
    return Countdown::menuTitle(next, now, horizonSeconds);
}

QString toolTip(const std::optional<QString> &title)
{
    return title.value_or(u"Quorvane"_s);
}

QString iconText(const std::optional<Booking> &next, const Instant &now, bool showsNext)
{
    if (!title(next, now, showsNext))
        return {};
    const qint64 s = now.msecsTo(next->start) / 1000;
    if (s <= 0)
        return Text::tr("now");
    // Rounded up like the title's countdown, so icon and tooltip agree.
    const qint64 m = (s + 59) / 60;
    return m < 60 ? Text::tr("%1m").arg(m) : Text::tr("%1h").arg(m / 60);
}

} // namespace quorvane::TrayText
