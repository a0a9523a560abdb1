#pragma once

#include "Instant.h"

#include <QString>
#include <QTimeZone>

// The pieces every page is made of. Every text that came from a person goes through
// `escape` before it reaches a page: names, notes, answers, titles, labels, codes.
namespace quorvane::sandbox::Html {

// & < > " ' as entities; safe inside elements and quoted attributes alike.
[[nodiscard]] QString escape(const QString &text);

// A whole document around `body`, with the shared style sheet. `title` is escaped here.
[[nodiscard]] QString page(const QString &title, const QString &body);

// "Tue 14 Jan, 10:30" in `zone`.
[[nodiscard]] QString dateTime(const Instant &instant, const QTimeZone &zone);
// "Tuesday 14 January" and "10:30", for grouping times under days.
[[nodiscard]] QString day(const Instant &instant, const QTimeZone &zone);
[[nodiscard]] QString time(const Instant &instant, const QTimeZone &zone);
// "Europe/Berlin" as "Europe/Berlin (CET)".
[[nodiscard]] QString zoneLabel(const QTimeZone &zone, const Instant &at);

} // namespace quorvane::sandbox::Html
