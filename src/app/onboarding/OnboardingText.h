#pragma once

#include "Account.h"

#include <QString>

#include <optional>

namespace quorvane {

// The words of the first-run guide that depend on where the user is or on this desktop.
namespace OnboardingText {
// For the step dots: "Step 2 of 4".
[[nodiscard]] QString stepLabel(int step, int steps);
[[nodiscard]] bool isLastStep(int step, int steps);
// The default button: "Continue", or "Get Started" on the last step (or past it).
[[nodiscard]] QString primaryLabel(int step, int steps);
// The closing tips, with this desktop's names of the keys.
[[nodiscard]] QString paletteTip();
[[nodiscard]] QString shareTip();
// "Signed in as {email}", or empty while no account is known.
[[nodiscard]] QString signedInLabel(const std::optional<Account> &account);
} // namespace OnboardingText

} // namespace quorvane
