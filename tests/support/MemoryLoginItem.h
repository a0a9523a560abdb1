#pragma once

#include "LoginItem.h"

namespace quorvane::test {

// A login item that only remembers: fixtures must not write the user's autostart folder.
class MemoryLoginItem final : public LoginItem
{
public:
    [[nodiscard]] bool isEnabled() const override { return m_enabled; }
    [[nodiscard]] bool needsApproval() const override { return false; }
    bool set(bool enabled) override
    {
        m_enabled = enabled;
        return true;
    }

private:
    bool m_enabled = false;
};

} // namespace quorvane::test
