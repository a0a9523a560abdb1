#pragma once

#include "palette/PaletteCommand.h"

#include "Instant.h"

#include <QList>

namespace quorvane {

class AppModel;
class CommandTable;

// The command palette's list: the sections and the fixed commands of the command table, the
// next meeting to join, a link per active type, and the newest bookings; and what a query
// keeps of it.
namespace CommandPalette {

constexpr int maxResults = 12;
constexpr int maxBookings = 200;

// The whole list as of `now`, in its order; the rows act on `app` and `table`, which must
// outlive them.
[[nodiscard]] QList<PaletteCommand> commands(AppModel &app, const CommandTable &table, const Instant &now);

// The places in `commands` that the list shows for `query`: the first twelve for an empty
// query, else the matches by score (the list's order among equals), at most twelve.
[[nodiscard]] QList<int> results(const QList<PaletteCommand> &commands, const QString &query);

// A row's second line: its key or link, or its date as "Mar 10, 9:30 AM" in the zone.
[[nodiscard]] QString subtitle(const PaletteCommand &command, const QString &locale, const QString &zone);

} // namespace CommandPalette

} // namespace quorvane
