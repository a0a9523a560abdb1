#include "availability/Availability.h"

#include "Formats.h"

#include <QCoreApplication>
#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace quorvane::Availability {

namespace {
struct Text {
    Q_DECLARE_TR_FUNCTIONS(Availability)
};
} // namespace

QString modeTitle(Mode mode)
{
    return mode == Mode::focus ? Text::tr("Focus blocks") : Text::tr("Working hours");
}

double startDistance(Target target)
{
    switch (target) {
    case Target::background:
        return 3;
    case Target::block:
        return 2;
    case Target::startEdge:
    case Target::endEdge:
        break;
    }
    return 1;
}

int minute(double y)
{
    return Grid::firstMinute + int(std::trunc(y / Grid::rowHeight * 60));
}

double yFor(int minute)
{
    return double(minute - Grid::firstMinute) / 60 * Grid::rowHeight;
}

int minutes(double translation)
{
    return int(std::trunc(translation / Grid::rowHeight * 60));
}

TimeRange drawn(double startY, double y)
{
    const int a = AvailabilityMath::snap(minute(startY));
    const int b = AvailabilityMath::snap(minute(y));
    const int lo = std::min(a, b);
    return {lo, std::max(lo + Grid::shortestBlock, std::max(a, b))};
}

TimeRange dragged(const TimeRange &range, Target target, double translation)
{
    const int delta = minutes(translation);
    switch (target) {
    case Target::startEdge:
        return AvailabilityMath::resize(range, AvailabilityMath::Edge::start, range.start + delta, Grid::shortestBlock);
    case Target::endEdge:
        return AvailabilityMath::resize(range, AvailabilityMath::Edge::end, range.end + delta, Grid::shortestBlock);
    case Target::block:
    case Target::background:
        break;
    }
    return AvailabilityMath::move(range, delta);
}

Look look(const TimeRange &shown, bool striped, bool hover, bool editable, bool dragging)
{
    Look l;
    l.fillOpacity = striped ? 0.22 : (hover && editable ? 0.85 : 0.7);
    l.outlineWidth = dragging ? 2 : (striped ? 1 : 0);
    l.tintedText = striped;
    l.opacity = editable ? 1 : 0.55;
    l.showsLabel = shown.duration() >= Grid::labelFrom;
    return l;
}

QString span(const TimeRange &range)
{
    return AvailabilityMath::label(range.start) + u'\u2013' + AvailabilityMath::label(range.end);
}

QString tooltip(const TimeRange &range)
{
    return AvailabilityMath::label(range.start) + u" \u2013 "_s + AvailabilityMath::label(range.end);
}

QString dayName(int weekday, const QString &locale)
{
    return Formats::weekdaySymbols(locale, Formats::WeekdayWidth::abbreviated, false).value((weekday + 6) % 7);
}

QString fullDayName(int weekday, const QString &locale)
{
    return Formats::weekdaySymbols(locale, Formats::WeekdayWidth::wide, true).value(weekday - 1);
}

QList<int> columnOrder()
{
    return {2, 3, 4, 5, 6, 7, 1};
}

QString hoursAccessibleLabel(int weekday, const TimeRange &range, const QString &locale)
{
    return Text::tr("%1 available %2 to %3")
        .arg(dayName(weekday, locale), AvailabilityMath::label(range.start), AvailabilityMath::label(range.end));
}

QString focusLabel(const FocusBlock &block)
{
    return block.label.isEmpty() ? Text::tr("Focus") : block.label;
}

QString focusAccessibleLabel(const FocusBlock &block, const QString &locale)
{
    return Text::tr("%1 focus block %2 %3 to %4")
        .arg(dayName(block.weekday, locale), focusLabel(block), AvailabilityMath::label(block.range.start),
             AvailabilityMath::label(block.range.end));
}

QString header(const HostSettings &settings)
{
    const qsizetype count = settings.focusBlocks.size();
    return Text::tr("%1 h/week bookable · %n focus block(s)", nullptr, int(count))
        .arg(AvailabilityMath::totalMinutes(settings.availability) / 60);
}

QString hint(Mode mode)
{
    return mode == Mode::focus
               ? Text::tr("Focus blocks are never offered to guests, even inside your working hours.")
               : Text::tr("Drag on empty space to add hours. Drag a block to move it, drag its edges to resize, and "
                          "right-click to delete.");
}

QString previewLine(const QList<DayAvailability> &days, const QString &locale)
{
    if (days.isEmpty())
        return {};
    QStringList parts;
    for (const DayAvailability &day : days) {
        QStringList ranges;
        for (const TimeRange &r : day.ranges)
            ranges << span(r);
        parts << dayName(day.weekday, locale) + u' ' + ranges.join(u", "_s);
    }
    return Text::tr("Will set %1").arg(parts.join(u" \u00B7 "_s));
}

void addHours(HostSettings &s, int weekday, QList<TimeRange> ranges, const TimeRange &added)
{
    ranges.append(added);
    s.availability = AvailabilityMath::set(s.availability, weekday, ranges);
}

void replaceHours(HostSettings &s, int weekday, QList<TimeRange> ranges, int index, const TimeRange &range)
{
    if (index < 0 || index >= ranges.size())
        return;
    ranges[index] = range;
    s.availability = AvailabilityMath::set(s.availability, weekday, ranges);
}

void removeHours(HostSettings &s, int weekday, QList<TimeRange> ranges, int index)
{
    if (index < 0 || index >= ranges.size())
        return;
    ranges.removeAt(index);
    s.availability = AvailabilityMath::set(s.availability, weekday, ranges);
}

void addFocus(HostSettings &s, int weekday, const TimeRange &range, const QString &id)
{
    s.focusBlocks.append({id, weekday, range, Text::tr("Focus")});
}

void moveFocus(HostSettings &s, const QString &id, const TimeRange &range)
{
    const auto found =
        std::find_if(s.focusBlocks.begin(), s.focusBlocks.end(), [&](const FocusBlock &f) { return f.id == id; });
    if (found != s.focusBlocks.end())
        found->range = range;
}

void removeFocus(HostSettings &s, const QString &id)
{
    s.focusBlocks.removeIf([&](const FocusBlock &f) { return f.id == id; });
}

void applyDays(HostSettings &s, const QList<DayAvailability> &days)
{
    for (const DayAvailability &day : days)
        s.availability = AvailabilityMath::set(s.availability, day.weekday, day.ranges);
}

TimeRange extended(const TimeRange &range)
{
    return AvailabilityMath::resize(range, AvailabilityMath::Edge::end, range.end + Grid::actionStep,
                                    Grid::shortestBlock);
}

TimeRange shortened(const TimeRange &range)
{
    return AvailabilityMath::resize(range, AvailabilityMath::Edge::end, range.end - Grid::actionStep,
                                    Grid::shortestBlock);
}

TimeRange nudged(const TimeRange &range, int minutes)
{
    return AvailabilityMath::move(range, minutes);
}

QString fmtNotice(int minutes)
{
    if (minutes < 60)
        return Text::tr("%1 min").arg(minutes);
    if (minutes % 60 == 0)
        return u"%1 h"_s.arg(minutes / 60);
    return Text::tr("%1 h %2 min").arg(minutes / 60).arg(minutes % 60);
}

int stepped(int value, int direction, int step, int low, int high)
{
    return std::clamp(value + (direction < 0 ? -step : step), low, high);
}

int noticeStep(int minutes)
{
    return minutes >= 120 ? 60 : 15;
}

} // namespace quorvane::Availability
