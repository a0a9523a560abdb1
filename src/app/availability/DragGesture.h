#pragma once

#include "availability/Availability.h"

#include <QPointF>

#include <optional>

namespace quorvane {

// One drag in a day column, from press to release: it becomes a drag once the pointer has
// travelled the target's start distance, and until then commits nothing. Each move works from
// where the press was, never from the last move. Positions are in the column's points.
class DragGesture
{
public:
    // A press on empty space (`range` unused), on a block or on one of its edges. `row` names
    // the block for the caller.
    void press(Availability::Target target, int row, const TimeRange &range, QPointF at);
    // False when nothing visible changed.
    bool moveTo(QPointF at);
    // What the gesture commits, if anything: a drawn range, or a block's new range when it
    // differs from the stored one. The gesture is over afterwards.
    std::optional<TimeRange> release();
    void cancel() { *this = DragGesture(); }

    [[nodiscard]] bool pressed() const { return m_pressed; }
    [[nodiscard]] bool dragging() const { return m_shown.has_value(); }
    [[nodiscard]] Availability::Target target() const { return m_target; }
    [[nodiscard]] int row() const { return m_row; }
    [[nodiscard]] const TimeRange &stored() const { return m_range; }
    // While dragging: the range drawn or the block's preview.
    [[nodiscard]] const std::optional<TimeRange> &shown() const { return m_shown; }

private:
    bool m_pressed = false;
    Availability::Target m_target = Availability::Target::background;
    int m_row = -1;
    TimeRange m_range;
    QPointF m_start;
    std::optional<TimeRange> m_shown;
};

} // namespace quorvane
