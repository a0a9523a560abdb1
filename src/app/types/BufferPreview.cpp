#include "types/BufferPreview.h"

#include <QCoreApplication>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace quorvane::BufferPreview {

namespace {
struct Text {
    Q_DECLARE_TR_FUNCTIONS(BufferPreview)
};

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
        add(Part::before, before, Text::tr("Buffer"));
    add(Part::meeting, minutes, Text::tr("%1m").arg(minutes));
    if (after >= 1)
        add(Part::after, after, Text::tr("Buffer"));
    return out;
}

QString accessibleLabel(int before, int minutes, int after)
{
    return Text::tr("Blocks %1 minutes before, %2 minute meeting, %3 minutes after")
        .arg(before)
        .arg(minutes)
        .arg(after);
}

} // namespace quorvane::BufferPreview
