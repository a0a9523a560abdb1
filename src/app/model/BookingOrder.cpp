#include "model/BookingOrder.h"

#include <QSet>

#include <algorithm>
#include <utility>
#include <vector>

namespace quorvane {

namespace {
// The bookings by start, earliest or latest first, equal starts in their given order. Each
// start is turned into a number once, and each booking moved once, however long the list.
QList<Booking> byStart(QList<Booking> bookings, Qt::SortOrder order)
{
    std::vector<std::pair<qint64, qsizetype>> keys;
    keys.reserve(size_t(bookings.size()));
    for (qsizetype i = 0; i < bookings.size(); ++i)
        keys.emplace_back(bookings.at(i).start.toMSecsSinceEpoch(), i);
    std::stable_sort(keys.begin(), keys.end(), [order](const auto &a, const auto &b) {
        return order == Qt::AscendingOrder ? a.first < b.first : a.first > b.first;
    });
    QList<Booking> sorted;
    sorted.reserve(bookings.size());
    for (const auto &[start, index] : keys)
        sorted.append(std::move(bookings[index]));
    return sorted;
}
} // namespace

BookingOrder BookingOrder::of(const Snapshot &snapshot)
{
    BookingOrder order;
    for (const Booking &b : snapshot.upcoming) {
        if (b.isActive())
            order.activeByStart.append(b);
    }
    order.activeByStart = byStart(std::move(order.activeByStart), Qt::AscendingOrder);

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
    order.all = byStart(std::move(order.all), Qt::DescendingOrder);
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
