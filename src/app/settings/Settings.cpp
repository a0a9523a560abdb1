#include "settings/Settings.h"

#include "Formats.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace quorvane::Settings {

namespace {
struct Text {
    Q_DECLARE_TR_FUNCTIONS(Settings)
};
} // namespace

QString calendarKey(const CalendarItem &calendar)
{
    return calendar.primary ? Text::tr("primary") : calendar.id;
}

QString calendarLabel(const CalendarItem &calendar)
{
    return calendar.title.value_or(calendar.id);
}

bool checksConflicts(const HostSettings &settings, const CalendarItem &calendar)
{
    return settings.busyCalendarIDs.contains(calendarKey(calendar)) || settings.busyCalendarIDs.contains(calendar.id);
}

void setChecksConflicts(HostSettings &settings, const CalendarItem &calendar, bool on)
{
    const QString key = calendarKey(calendar);
    settings.busyCalendarIDs.removeIf([&](const QString &id) { return id == key || id == calendar.id; });
    if (on)
        settings.busyCalendarIDs.append(key);
}

QList<CalendarItem> writable(const QList<CalendarItem> &calendars)
{
    QList<CalendarItem> out;
    for (const CalendarItem &c : calendars) {
        if (c.writable)
            out.append(c);
    }
    return out;
}

int bookingChoice(const QList<CalendarItem> &choices, const QString &bookingCalendarID)
{
    for (int i = 0; i < choices.size(); ++i) {
        if (calendarKey(choices.at(i)) == bookingCalendarID)
            return i;
    }
    return -1;
}

QString connectionText(bool connected, const std::optional<GoogleStatus> &status)
{
    if (!connected)
        return Text::tr("Not connected");
    if (status && status->email)
        return Text::tr("Connected as %1").arg(*status->email);
    return Text::tr("Connected");
}

QString calendarError(const std::optional<GoogleStatus> &status)
{
    if (!status)
        return {};
    return status->lastError.value_or(status->error.value_or(QString()));
}

QString nameText(const Account &account)
{
    return account.name && !account.name->isEmpty() ? *account.name : u"\u2014"_s;
}

QList<int> reminderChoices()
{
    return {1, 2, 5, 10, 15};
}

QString reminderText(int minutes)
{
    return Text::tr("%1 min before").arg(minutes);
}

QString versionText(const QString &shortVersion, const QString &build)
{
    const auto part = [](const QString &text) { return text.isEmpty() ? u"?"_s : text; };
    return u"%1 (%2)"_s.arg(part(shortVersion), part(build));
}

QString lastCheckedText(const QDateTime &lastCheck, const Instant &now, const QString &locale)
{
    if (!lastCheck.isValid())
        return {};
    return Text::tr("Last checked %1").arg(Formats::relativeTime(lastCheck, now, locale));
}

} // namespace quorvane::Settings
