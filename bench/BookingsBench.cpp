#include "BookingsBench.h"

#include "BenchReport.h"
#include "FixtureApp.h"
#include "bookings/BookingListModel.h"
#include "bookings/Bookings.h"

#include <QCoreApplication>
#include <QCoroTask>

using namespace Qt::StringLiterals;

namespace quorvane::bench {

bool benchBookings(const QList<Booking> &bookings)
{
    int argc = 1;
    char name[] = "quorvane-bench";
    char *argv[] = {name, nullptr};
    const QCoreApplication application(argc, argv);

    // The fixture app's host, with the sample for its bookings, as after a refresh.
    test::FixtureApp app;
    const Instant now = app.model().now();
    Snapshot &server = app.transport().data;
    server.upcoming.clear();
    server.history.clear();
    for (const Booking &b : bookings)
        (b.end > now ? server.upcoming : server.history).append(b);
    QCoro::waitFor(app.model().refresh());
    const QList<Booking> all = app.model().allBookings();
    const auto title = [&app](const QString &slug) { return app.model().typeTitle(slug); };

    // A search under "All", as typed, with the days it falls on.
    const double search = nanosPerCall(15, 5, [&] {
        const QList<Booking> found =
            Bookings::filtered(all, Bookings::Filter::all, std::nullopt, u"ann"_s, now, u"en_US"_s, title);
        keep(Bookings::grouped(found, Bookings::Filter::all, WeekCalendar(u"en_US"_s, u"America/New_York"_s)));
    });
    bool ok = report("Bookings filtered + grouped, 10,000, a query", search / 1e6, "ms", 5);

    // The list model under "All" when a refresh brings the same bookings again, and when it
    // is made from nothing.
    BookingListModel model;
    model.setFilter(Bookings::Filter::all);
    model.setApp(&app.model());
    const double refresh = nanosPerCall(9, 3, [&] { Q_EMIT app.model().snapshotChanged(); });
    ok = report("BookingListModel after a refresh, 10,000", refresh / 1e6, "ms", 20) && ok;
    const double fresh = nanosPerCall(9, 3, [&] {
        model.setApp(nullptr);
        model.setApp(&app.model());
    });
    return report("BookingListModel from nothing, 10,000", fresh / 1e6, "ms", 20) && ok;
}

} // namespace quorvane::bench
