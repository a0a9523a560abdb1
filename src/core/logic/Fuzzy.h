#pragma once

#include <QString>

#include <optional>

// Ranks the command palette's entries against what the user typed.
namespace quorvane::Fuzzy {

// No value when the query's characters don't all appear in order in `text`. Higher is
// better: word starts and runs earn bonuses, and shorter texts win ties. Blanks in the
// query are ignored; an empty query matches everything with 0.
[[nodiscard]] std::optional<int> score(const QString &query, const QString &text);

} // namespace quorvane::Fuzzy
