#pragma once

#include <QSet>
#include <QString>

// The last part of a booking link, made from an event type's title.
namespace quorvane::Slug {

inline constexpr int maxLength = 40;

// Lower case, letters and numbers of any script kept, everything else one "-" per run,
// "meeting" when nothing is left, then cut to 40 user-perceived characters.
[[nodiscard]] QString make(const QString &title);

// make(title), or the first of "-2", "-3", … after it that isn't taken.
[[nodiscard]] QString unique(const QString &title, const QSet<QString> &existing);

} // namespace quorvane::Slug
