#include "onboarding/OnboardingModel.h"

#include "LoginItem.h"
#include "Notifier.h"
#include "model/Preferences.h"
#include "onboarding/OnboardingText.h"

#include <QPointer>

namespace quorvane {

namespace {
// The task goes on by itself once its handle is dropped, and catches its own failures.
void detach(QCoro::Task<> &&task)
{
    QCoro::Task<> dropped = std::move(task);
    Q_UNUSED(dropped);
}
} // namespace

OnboardingModel::OnboardingModel(Preferences &preferences, Notifier &notifier, LoginItem &loginItem, QObject *parent)
    : QObject(parent)
    , m_preferences(preferences)
    , m_notifier(notifier)
    , m_loginItem(loginItem)
    , m_login(loginItem.isEnabled())
{}

QString OnboardingModel::primaryLabel() const
{
    return OnboardingText::primaryLabel(m_step, stepCount);
}

QString OnboardingModel::stepLabel() const
{
    return OnboardingText::stepLabel(m_step, stepCount);
}

QString OnboardingModel::paletteTip() const
{
    return OnboardingText::paletteTip();
}

QString OnboardingModel::shareTip() const
{
    return OnboardingText::shareTip();
}

void OnboardingModel::setLogin(bool enabled)
{
    // The result is not shown here (Settings shows it); the switch reads the real state instead.
    (void)m_loginItem.set(enabled);
    m_login = m_loginItem.isEnabled();
    // Also when unchanged: the switch the user flipped has to flip back.
    Q_EMIT loginChanged();
}

void OnboardingModel::setNotif(bool enabled)
{
    const quint64 generation = ++m_notifGeneration;
    showNotif(enabled);
    if (enabled)
        detach(askNotifier(Ask::permission, generation));
}

void OnboardingModel::appear()
{
    setStep(0);
    m_login = m_loginItem.isEnabled();
    Q_EMIT loginChanged();
    detach(askNotifier(Ask::current, ++m_notifGeneration));
}

QCoro::Task<> OnboardingModel::askNotifier(Ask ask, quint64 generation)
{
    const QPointer<OnboardingModel> self(this);
    Notifier &notifier = m_notifier;
    bool answer = false;
    try {
        // Two plain awaits: g++ 12 mishandles a Task made inside `co_await (c ? a : b)`.
        if (ask == Ask::permission)
            answer = co_await notifier.requestAuthorization();
        else
            answer = co_await notifier.authorized();
    } catch (...) {
        answer = false; // a request that failed counts as refused
    }
    if (self && generation == m_notifGeneration)
        showNotif(answer);
}

void OnboardingModel::showNotif(bool value)
{
    m_notif = value;
    Q_EMIT notifChanged();
}

void OnboardingModel::back()
{
    if (canGoBack())
        setStep(m_step - 1);
}

void OnboardingModel::advance()
{
    if (!OnboardingText::isLastStep(m_step, stepCount)) {
        setStep(m_step + 1);
        return;
    }
    m_preferences.setOnboarded(true);
    Q_EMIT finished();
}

void OnboardingModel::setStep(int step)
{
    if (step == m_step)
        return;
    m_step = step;
    Q_EMIT stepChanged();
}

} // namespace quorvane
