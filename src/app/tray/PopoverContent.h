#pragma once

#include "model/Banner.h"

#include <optional>

namespace quorvane {

// Which parts of the tray popover show. The header and the footer always do.
struct PopoverContent {
    bool signIn = false; // the sign-in panel, alone in place of everything else
    bool banner = false; // an error or offline banner above the card
    bool toast = false;  // an info banner, shown as a green line under the links

    bool operator==(const PopoverContent &) const = default;

    // Signed out with no cached account leaves nothing to show but the way in; signed out with
    // an account still cached (a revoked token) keeps the data, with the error on top.
    [[nodiscard]] static PopoverContent select(bool needsSignIn, bool hasAccount, const std::optional<Banner> &banner);
};

} // namespace quorvane
