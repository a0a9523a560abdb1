#pragma once

#include <QFont>
#include <QList>

namespace quorvane::FirstFrameFonts {

// A text style of the main window's first frame: a pixel size (0 for the application's own
// font) and a weight.
struct Style {
    int pixelSize = 0;
    QFont::Weight weight = QFont::Normal;
    friend bool operator==(const Style &, const Style &) = default;
};

// The styles the main window draws its first frame with, on Today. Looking a font up takes
// fontconfig a while, once per style and thread; a start looks these up on the main thread
// while it waits for the QML loader, so that the first frame finds them ready. A style
// missing here costs time, never looks.
[[nodiscard]] QList<Style> styles();

// Looks the style's font up now, on the calling thread.
void load(const Style &style);

// Measures the characters most of the window's text is made of in that style, on the calling
// thread, so that laying the first frame's text out finds their shapes and advances known.
void measure(const Style &style);

} // namespace quorvane::FirstFrameFonts
