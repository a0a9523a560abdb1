#include "availability/DragGesture.h"

#include <QLineF>

namespace quorvane {

using Availability::Target;

void DragGesture::press(Target target, int row, const TimeRange &range, QPointF at)
{
    *this = DragGesture();
    m_pressed = true;
    m_target = target;
    m_row = row;
    m_range = range;
    m_start = at;
}

bool DragGesture::moveTo(QPointF at)
{
    if (!m_pressed)
        return false;
    if (!m_shown && QLineF(m_start, at).length() < Availability::startDistance(m_target))
        return false;
    const TimeRange next = m_target == Target::background
                               ? Availability::drawn(m_start.y(), at.y())
                               : Availability::dragged(m_range, m_target, at.y() - m_start.y());
    if (m_shown == next)
        return false;
    m_shown = next;
    return true;
}

std::optional<TimeRange> DragGesture::release()
{
    std::optional<TimeRange> out;
    if (m_shown && (m_target == Target::background || *m_shown != m_range))
        out = m_shown;
    cancel();
    return out;
}

} // namespace quorvane
