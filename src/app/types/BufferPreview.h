#pragma once

#include <QList>
#include <QString>

// The bar under the buffers: how the time before, the meeting and the time after fill a
// booking's block, in proportion, in a bar of a given width.
namespace quorvane::BufferPreview {

enum class Part { before, meeting, after };

struct Segment {
    Part part = Part::meeting;
    double x = 0;     // from the bar's left edge
    double width = 0; // as drawn: never under 4
    QString label;    // "Buffer" or "45m"; empty when the segment is too narrow for it

    bool operator==(const Segment &) const = default;
};

// Segments 2 apart, left to right; a buffer of 0 minutes has none. Each takes its share of
// `width` less 2, and at least 4; its label shows only on a share over 50.
[[nodiscard]] QList<Segment> segments(int before, int minutes, int after, double width);

// "Blocks 5 minutes before, 30 minute meeting, 5 minutes after"
[[nodiscard]] QString accessibleLabel(int before, int minutes, int after);

} // namespace quorvane::BufferPreview
