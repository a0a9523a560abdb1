#pragma once

#include "AvailabilityMath.h"
#include "HostSettings.h"

#include <QList>
#include <QString>

// The availability screen's arithmetic and texts: where a minute sits on the week grid, what a
// drag makes of pointer positions, how a block looks, and the edits a day column commits.
// Minutes count from local midnight; distances are in the grid's points.
namespace quorvane::Availability {

// What the grid edits: the working hours, or the focus blocks.
enum class Mode { hours, focus };

[[nodiscard]] QString modeTitle(Mode mode); // "Working hours", "Focus blocks"

namespace Grid {
inline constexpr int firstHour = 6;
inline constexpr int endHour = 22; // exclusive: 16 rows
inline constexpr int firstMinute = firstHour * 60;
inline constexpr int rows = endHour - firstHour;
inline constexpr double rowHeight = 38;
inline constexpr double columnHeight = rows * rowHeight;
inline constexpr double headerHeight = 28;
inline constexpr double gutterWidth = 48;
inline constexpr double gutterGap = 4;
inline constexpr int shortestBlock = 15;
inline constexpr int actionStep = 30; // "Extend 30 minutes", "Shorten 30 minutes"
inline constexpr int nudgeStep = 15;  // Up and Down on a focused block
inline constexpr int labelFrom = 45;  // a block shorter than this draws no text
inline constexpr double shortestDrawn = 10;
inline constexpr double shortestPreview = 8;
} // namespace Grid

// Where a drag starts, and the distance the pointer must travel before it is one.
enum class Target { background, block, startEdge, endEdge };
[[nodiscard]] double startDistance(Target target);

// The minute at a height in a day column: 360 + truncate(y / 38 × 60).
[[nodiscard]] int minute(double y);
// The height of a minute; minutes before 6 AM lie above the column's top.
[[nodiscard]] double yFor(int minute);
// A vertical translation in minutes, truncated toward zero.
[[nodiscard]] int minutes(double translation);

// The range a drag on empty space draws, from where it began to where it is; upward works as
// well as downward, and the block is at least 15 minutes.
[[nodiscard]] TimeRange drawn(double startY, double y);
// What a drag on a block, or on one of its edges, makes of the stored range.
[[nodiscard]] TimeRange dragged(const TimeRange &range, Target target, double translation);

// How a block is drawn.
struct Look {
    double fillOpacity = 0.7;
    double outlineWidth = 0; // 0: none
    bool tintedText = false; // the block's colour instead of white
    double opacity = 1;
    bool showsLabel = true;
    bool operator==(const Look &) const = default;
};
[[nodiscard]] Look look(const TimeRange &shown, bool striped, bool hover, bool editable, bool dragging);

// "9 AM–5 PM": block labels, the drawing preview, the sentence preview.
[[nodiscard]] QString span(const TimeRange &range);
// "9 AM – 5 PM": tooltips.
[[nodiscard]] QString tooltip(const TimeRange &range);

// The locale's short name of a weekday (1 Sunday … 7 Saturday), and its full name.
[[nodiscard]] QString dayName(int weekday, const QString &locale);
[[nodiscard]] QString fullDayName(int weekday, const QString &locale);
// The columns' weekdays: Monday first, whatever the locale.
[[nodiscard]] QList<int> columnOrder();

// What a screen reader says of a block.
[[nodiscard]] QString hoursAccessibleLabel(int weekday, const TimeRange &range, const QString &locale);
[[nodiscard]] QString focusAccessibleLabel(const FocusBlock &block, const QString &locale);
// A focus block's text: its label, or "Focus".
[[nodiscard]] QString focusLabel(const FocusBlock &block);

// "38 h/week bookable · 2 focus blocks".
[[nodiscard]] QString header(const HostSettings &settings);
[[nodiscard]] QString hint(Mode mode);

// "Will set Mon 9 AM–5 PM · Fri 9 AM–1 PM"; empty when nothing was understood.
[[nodiscard]] QString previewLine(const QList<DayAvailability> &days, const QString &locale);

// The edits of one day column. Each works on the column's ranges as it last read them, and
// is one change of the settings. Focus blocks are found by id; an index or id that is gone
// changes nothing.
void addHours(HostSettings &s, int weekday, QList<TimeRange> ranges, const TimeRange &added);
void replaceHours(HostSettings &s, int weekday, QList<TimeRange> ranges, int index, const TimeRange &range);
void removeHours(HostSettings &s, int weekday, QList<TimeRange> ranges, int index);
void addFocus(HostSettings &s, int weekday, const TimeRange &range, const QString &id);
void moveFocus(HostSettings &s, const QString &id, const TimeRange &range);
void removeFocus(HostSettings &s, const QString &id);
// Sets each day the sentence named, in order; the other days keep their hours.
void applyDays(HostSettings &s, const QList<DayAvailability> &days);

// The named accessibility actions, on the stored range.
[[nodiscard]] TimeRange extended(const TimeRange &range);
[[nodiscard]] TimeRange shortened(const TimeRange &range);
// Up and Down on a focused block: 15 minutes earlier or later, kept inside the day.
[[nodiscard]] TimeRange nudged(const TimeRange &range, int minutes);

// The rules form.
// "45 min", "2 h", "1 h 30 min".
[[nodiscard]] QString fmtNotice(int minutes);
// A stepper's next value: one step up or down, stopped at the ends of the range. A value that
// came from the server beyond the range goes back to its end on the first step toward it.
[[nodiscard]] int stepped(int value, int direction, int step, int low, int high);
// Minimum notice moves by the hour from two hours up, else by quarters.
[[nodiscard]] int noticeStep(int minutes);

} // namespace quorvane::Availability
