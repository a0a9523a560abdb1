#include "tray/PopoverContent.h"

namespace quorvane {

PopoverContent PopoverContent::select(bool needsSignIn, bool hasAccount, const std::optional<Banner> &banner)
{
    if (needsSignIn && !hasAccount)
        return {.signIn = true};
    const bool info = banner && banner->kind == Banner::Kind::info;
    return {.signIn = false, .banner = banner && !info, .toast = info};
}

} // namespace quorvane
