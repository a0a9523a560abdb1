#pragma once

#include <QList>
#include <QString>

#include <optional>

namespace quorvane {

// The six sections of the main window, in sidebar order.
enum class AppSection { today, bookings, types, availability, polls, insights };

namespace Section {
[[nodiscard]] QList<AppSection> allCases();
[[nodiscard]] QString id(AppSection section);
[[nodiscard]] std::optional<AppSection> fromId(const QString &id);
[[nodiscard]] QString title(AppSection section);
[[nodiscard]] QString symbol(AppSection section);
// The digit of its key equivalent: its place in the order, from "1".
[[nodiscard]] QString shortcut(AppSection section);
} // namespace Section

} // namespace quorvane
