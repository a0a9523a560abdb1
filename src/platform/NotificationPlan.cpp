#include "NotificationPlan.h"

#include "Formats.h"

#include <QCoreApplication>
#include <algorithm>

namespace quorvane::NotificationPlan {

namespace {
struct Text {
    Q_DECLARE_TR_FUNCTIONS(NotificationPlan)
};

const QString separator = QStringLiteral(" \u00B7 ");

} // namespace

NotificationRequest announcement(const ChangeEvent &event, const QString &typeTitle, const QString &locale,
                                 const QString &zone)
{
    const Booking &b = event.booking;
    const QString when = Formats::format(b.start, QStringLiteral("EEEMMMdjmm"), locale, zone);
    const bool booked = event.kind == ChangeEvent::Kind::booked;

    NotificationRequest request;
    request.identifier = QStringLiteral("chg-%1-%2").arg(b.id, booked ? QStringLiteral("b") : QStringLiteral("c"));
    request.title = (booked ? Text::tr("New booking: %1") : Text::tr("Cancelled: %1")).arg(b.name);
    const QString what = typeTitle + separator + when;
    request.body = booked ? what : Text::tr("%1 was cancelled").arg(what);
    request.category = NotificationCategory::booking;
    request.bookingID = b.id;
    request.meet = b.meet.value_or(QString());
    return request;
}

QList<NotificationRequest> reminders(const QList<Booking> &bookings, const Instant &now, int minutesBefore,
                                     const QHash<QString, QString> &titles, const QString &locale, const QString &zone)
{
    const qint64 leadSeconds = qint64(std::max(minutesBefore, 1)) * 60;
    const Instant horizon = now.addSecs(reminderHorizonSeconds);

    QList<NotificationRequest> planned;
    for (const Booking &b : bookings) {
        if (!b.isActive())
            continue;
        const Instant fireAt = b.start.addSecs(-leadSeconds);
        if (!(fireAt > now && fireAt < horizon))
            continue;

        NotificationRequest request;
        request.identifier = reminderPrefix + b.id;
        request.title = Text::tr("%1 with %2 in %3 min")
                            .arg(titles.value(b.type, Text::tr("Meeting")), b.name, QString::number(minutesBefore));
        request.body = Formats::format(b.start, QStringLiteral("jmm"), locale, zone);
        if (b.meet)
            request.body += separator + QStringLiteral("Google Meet");
        request.category = NotificationCategory::meeting;
        request.bookingID = b.id;
        request.meet = b.meet.value_or(QString());
        request.fireAt = fireAt.toUTC();
        planned.append(request);
    }
    return planned;
}

std::optional<QUrl> joinTarget(const QString &action, const QString &meet)
{
    if (action != QStringLiteral("JOIN") || meet.isEmpty())
        return std::nullopt;
    const QUrl url(meet, QUrl::StrictMode);
    if (!url.isValid() || url.isEmpty())
        return std::nullopt;
    return url;
}

} // namespace quorvane::NotificationPlan
