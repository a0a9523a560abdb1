#include "onboarding/OnboardingText.h"

#include "shell/CommandTable.h"
#include "shell/KeyLabel.h"

using namespace Qt::StringLiterals;

namespace quorvane::OnboardingText {

QString stepLabel(int step, int steps)
{
    return u"Step %1 of %2"_s.arg(step + 1).arg(steps);
}

bool isLastStep(int step, int steps)
{
    return step >= steps - 1;
}

QString primaryLabel(int step, int steps)
{
    return isLastStep(step, steps) ? u"Get Started"_s : u"Continue"_s;
}

QString paletteTip()
{
    return KeyLabel::text(CommandTable::keys(CommandId::CommandPalette)) + u" opens the command palette"_s;
}

QString shareTip()
{
    return CommandTable::shareHotKeyText() + u" shares a few open times from anywhere"_s;
}

QString signedInLabel(const std::optional<Account> &account)
{
    return account ? u"Signed in as %1"_s.arg(account->email) : QString();
}

} // namespace quorvane::OnboardingText
