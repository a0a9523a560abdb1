#pragma once

#include <QStringList>

// User-perceived characters, so that "é" written with a combining accent is one character.
namespace quorvane::Graphemes {

// The grapheme clusters of `text`, in order, each in composed (NFC) form so that
// canonically equivalent characters compare equal.
[[nodiscard]] QStringList split(const QString &text);

// The first code point of a cluster, which decides what kind of character it is.
[[nodiscard]] char32_t leadCodePoint(const QString &cluster);

} // namespace quorvane::Graphemes
