#include "onboarding/OnboardingText.h"

#include "shell/CommandTable.h"
#include "shell/KeyLabel.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace quorvane::OnboardingText {

namespace {
struct Text {
    Q_DECLARE_TR_FUNCTIONS(OnboardingText)
};
} // namespace

QString stepLabel(int step, int steps)
{
    return Text::tr("Step %1 of %2").arg(step + 1).arg(steps);
}

bool isLastStep(int step, int steps)
{
    return step >= steps - 1;
}

QString primaryLabel(int step, int steps)
{
    return isLastStep(step, steps) ? Text::tr("Get Started") : Text::tr("Continue");
}

QString paletteTip()
{
    return Text::tr("%1 opens the command palette").arg(KeyLabel::text(CommandTable::keys(CommandId::CommandPalette)));
}

QString shareTip()
{
    return Text::tr("%1 shares a few open times from anywhere").arg(CommandTable::shareHotKeyText());
}

QString signedInLabel(const std::optional<Account> &account)
{
    return account ? Text::tr("Signed in as %1").arg(account->email) : QString();
}

} // namespace quorvane::OnboardingText
