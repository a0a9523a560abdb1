#pragma once

#include <QStringView>
#include <QtGlobal>

// The coverage of every bundled icon at the sizes the screens draw icons at, drawn by the build
// (quorvane-make-icon-masks, with IconMask::draw): an icon at one of these sizes costs the
// start no SVG to read and draw.
namespace quorvane::IconMasks {

// The sides, in pixels, of the square sizes drawn ahead.
inline constexpr int sides[] = {8, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20, 22, 24, 26, 28, 32, 36};

// The coverage of the icon file `stem` ("calendar") at `side`×`side`, or null when it wasn't
// drawn ahead.
[[nodiscard]] const uchar *find(QStringView stem, int side);

// What the build writes (IconMasksData.cpp): the entries sorted by stem, then by side, each
// with the offset of its coverage in `coverage`.
namespace data {
struct Entry {
    const char *stem;
    int side;
    unsigned offset;
};
extern const Entry entries[];
extern const unsigned entryCount;
extern const char coverage[];
} // namespace data

} // namespace quorvane::IconMasks
