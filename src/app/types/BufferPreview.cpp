#include "types/BufferPreview.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace quorvane::BufferPreview {

namespace {
constexpr double gap = 2;
constexpr double minimumWidth = 4;
constexpr double labelFrom = 50;
} // namespace

QList<Segment> segments(int before, int minutes, int after, double width)
{
    const double total = std::max(1, before + minutes + after);
    QList<Segment> out;
    double x = 0;
    const auto add = [&](Part part, int value, const QString &label) {
        const double share = width * value / total;
        const Segment segment{part, x, std::max(minimumWidth, share - gap), share > labelFrom ? label : QString()};
        out.append(segment);
        x += segment.width + gap;
    };
    if (before >= 1)
        add(Part::before, before, u"Buffer"_s);
    add(Part::meeting, minutes, u"%1m"_s.arg(minutes));
    if (after >= 1)
        add(Part::after, after, u"Buffer"_s);
    return out;
}

QString accessibleLabel(int before, int minutes, int after)
{
    return u"Blocks %1 minutes before, %2 minute meeting, %3 minutes after"_s.arg(before).arg(minutes).arg(after);
}

} // namespace quorvane::BufferPreview
