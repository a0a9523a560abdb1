#pragma once

#include <QByteArray>
#include <QColor>
#include <QImage>
#include <QSize>
#include <QString>

// How a bundled icon becomes an image: its SVG drawn as coverage (how much of each pixel the
// drawing covers), then that coverage filled with a colour. The build draws the coverage of
// every icon at the usual sizes ahead of time (IconMasks); the app draws only what is missing
// from there, with the same code, so that both ways give the same pixels.
namespace quorvane::IconMask {

// The coverage of the SVG file at `path` drawn into `size`: one byte a pixel, row by row. An
// empty array when the file doesn't draw.
[[nodiscard]] QByteArray draw(const QString &path, QSize size);

// `coverage` (one byte for each pixel of `size`) filled with `color`.
[[nodiscard]] QImage tint(const uchar *coverage, QSize size, const QColor &color);

} // namespace quorvane::IconMask
