#pragma once

#include "Store.h"

#include <QRandomGenerator>

// What a new user sees first: a host with half a year of meetings behind them and two weeks
// ahead, drawn from one generator so that a seed repeats the same world.
namespace quorvane::sandbox::DemoData {

struct Guest {
    QString name;
    QString email;
    QString tz;
};

// Everything: account, settings, calendar, ~180 days of history, upcoming meetings
// (several of them today) and two polls with votes.
void seed(Store &store, const Instant &now, QRandomGenerator &rng, const QString &zoneId);

// A fresh account with one meeting type and weekday hours, and nothing booked.
void seedEmpty(Store &store, const QString &zoneId);

[[nodiscard]] HostSettings demoSettings(const QString &zoneId, QRandomGenerator &rng);
[[nodiscard]] Guest randomGuest(QRandomGenerator &rng, const QString &hostZone);

// The machine's zone as an IANA name, or "UTC" where the machine names none.
[[nodiscard]] QString machineZone();

} // namespace quorvane::sandbox::DemoData
