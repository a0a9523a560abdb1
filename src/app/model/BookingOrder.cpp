#include "model/BookingOrder.h"

#include <QSet>

#include <algorithm>

namespace quorvane {

BookingOrder BookingOrder::of(const Snapshot &snapshot)
{
    BookingOrder order;
    for (const Booking &b : snapshot.upcoming) {
        if (b.isActive())
            order.activeByStart.append(b);
    }
    std::stable_sort(order.activeByStart.begin(), order.activeByStart.end(),
                     [](const Booking &a, const Booking &b) { return a.start < b.start; });

    // A booking in both lists is taken from the upcoming one.
    QSet<QString> seen;
    for (const QList<Booking> *list : {&snapshot.upcoming, &snapshot.history}) {
        for (const Booking &b : *list) {
            if (!seen.contains(b.id)) {
                seen.insert(b.id);
                order.all.append(b);
            }
        }
    }
    std::stable_sort(order.all.begin(), order.all.end(),
                     [](const Booking &a, const Booking &b) { return a.start > b.start; });
    return order;
}

std::optional<SavedData> SavedData::of(std::optional<Snapshot> snapshot)
{
    if (!snapshot)
        return std::nullopt;
    SavedData saved{std::move(*snapshot), {}};
    saved.order = BookingOrder::of(saved.snapshot);
    return saved;
}

} // namespace quorvane
