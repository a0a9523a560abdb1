#include "onboarding/SetupServices.h"

#include "UrlOpener.h"
#include "model/AppModel.h"
#include "onboarding/OnboardingText.h"
#include "onboarding/SignInText.h"

#include <QQmlEngine>

namespace quorvane {

SetupServices::SetupServices(AppModel &model, const AppEnvironment &environment, LoginItem &loginItem,
                             DeviceSignIn::Timings signInTimings, QObject *parent)
    : QObject(parent)
    , m_model(model)
    , m_environment(environment)
    , m_loginItem(loginItem)
    , m_signInTimings(signInTimings)
    , m_about(AboutConfig::fromBuild(), *environment.opener)
{
    connect(&m_model, &AppModel::snapshotChanged, this, &SetupServices::signedInLabelChanged);
}

DeviceSignIn *SetupServices::createSignIn(QObject *owner)
{
    auto *auth = new DeviceSignIn(m_environment.transport, *m_environment.secrets, *m_environment.opener,
                                  *m_environment.clock, m_signInTimings, owner);
    // The owner decides its life, not the JavaScript collector.
    QQmlEngine::setObjectOwnership(auth, QQmlEngine::CppOwnership);
    return auth;
}

void SetupServices::begin(DeviceSignIn *auth)
{
    if (!auth)
        return;
    auth->onSuccess = [model = &m_model] { model->signedIn(); };
    auth->start(m_model.baseURL());
}

bool SetupServices::openAgain(DeviceSignIn *auth) const
{
    return auth && auth->phase() == DeviceSignIn::waiting && m_environment.opener->open(auth->url());
}

OnboardingModel *SetupServices::createOnboarding(QObject *owner)
{
    auto *onboarding = new OnboardingModel(*m_environment.preferences, *m_environment.notifier, m_loginItem, owner);
    QQmlEngine::setObjectOwnership(onboarding, QQmlEngine::CppOwnership);
    return onboarding;
}

LoginSwitch *SetupServices::createLoginSwitch(QObject *owner)
{
    auto *login = new LoginSwitch(m_loginItem, owner);
    QQmlEngine::setObjectOwnership(login, QQmlEngine::CppOwnership);
    return login;
}

NotificationAccess *SetupServices::createNotificationAccess(QObject *owner)
{
    auto *access = new NotificationAccess(*m_environment.notifier, owner);
    QQmlEngine::setObjectOwnership(access, QQmlEngine::CppOwnership);
    return access;
}

QString SetupServices::spokenCode(const QString &code)
{
    return SignInText::spokenCode(code);
}

QString SetupServices::signedInLabel() const
{
    return OnboardingText::signedInLabel(m_model.account());
}

} // namespace quorvane
