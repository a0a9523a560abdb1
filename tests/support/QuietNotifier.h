#pragma once

#include "Notifier.h"

namespace quorvane::test {

// Notifications that go nowhere but are counted: fixtures run without a session bus.
class QuietNotifier final : public Notifier
{
    Q_OBJECT

public:
    using Notifier::Notifier;

    void announce(const ChangeEvent &, const QString &) override { ++announced; }
    void scheduleReminders(const QList<Booking> &bookings, int, const QHash<QString, QString> &) override
    {
        reminders = int(bookings.size());
    }
    void removeAll() override { reminders = 0; }
    QCoro::Task<bool> authorized() override { co_return authorizes; }
    QCoro::Task<bool> requestAuthorization() override { co_return authorizes; }

    bool authorizes = true; // false: as on a desktop where no notification service answers
    int announced = 0;
    int reminders = 0;
};

} // namespace quorvane::test
