#pragma once

namespace quorvane {

// Whether the app starts when the user logs in.
class LoginItem
{
public:
    virtual ~LoginItem() = default;

    [[nodiscard]] virtual bool isEnabled() const = 0;
    // True where the system holds the item until the user approves it elsewhere.
    [[nodiscard]] virtual bool needsApproval() const = 0;
    // False when the change couldn't be made; isEnabled() then tells what holds.
    [[nodiscard]] virtual bool set(bool enabled) = 0;
};

} // namespace quorvane
