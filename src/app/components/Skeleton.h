#pragma once

// The placeholder bars of a loading list: widths that look random but never change, so a
// list doesn't flicker while it waits.
namespace quorvane::Skeleton {

// Row 0, 1, 2, ... : 140, 177, 214, 161, 198, ...
[[nodiscard]] int firstBarWidth(int row);
// Row 0, 1, 2, ... : 90, 143, 126, 109, 92, ...
[[nodiscard]] int secondBarWidth(int row);

} // namespace quorvane::Skeleton
