#pragma once

#include "about/AboutModel.h"
#include "model/AppEnvironment.h"
#include "onboarding/DeviceSignIn.h"
#include "onboarding/OnboardingModel.h"
#include "settings/LoginSwitch.h"
#include "settings/NotificationAccess.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace quorvane {

class AppModel;
class LoginItem;

// Hands the sign-in panel, the first-run guide and About the objects they work with, wired to
// this application's network, keyring, browser, notifications and login item. QML reaches it
// as the singleton Setup.
class SetupServices : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the application and reached as Setup.")
    Q_PROPERTY(QString signedInLabel READ signedInLabel NOTIFY signedInLabelChanged)
    Q_PROPERTY(quorvane::AboutModel *about READ about CONSTANT)

public:
    // Everything passed in must outlive this object; the model's environment supplies the
    // transport, keyring, opener, clock, notifier and preferences.
    SetupServices(AppModel &model, const AppEnvironment &environment, LoginItem &loginItem,
                  DeviceSignIn::Timings signInTimings = {}, QObject *parent = nullptr);

    // A sign-in of the caller's own, ending with `owner`: a panel that goes away ends its flow.
    Q_INVOKABLE quorvane::DeviceSignIn *createSignIn(QObject *owner);
    // The panel's sign-in button: when the token is stored, the model takes over; then the flow
    // starts against the server the user chose.
    Q_INVOKABLE void begin(quorvane::DeviceSignIn *auth);
    // Opens the page of a waiting sign-in again.
    Q_INVOKABLE bool openAgain(quorvane::DeviceSignIn *auth) const;
    // A first-run guide for one window, ending with `owner`.
    Q_INVOKABLE quorvane::OnboardingModel *createOnboarding(QObject *owner);
    // The settings window's login switch and notification check, each ending with `owner`.
    Q_INVOKABLE quorvane::LoginSwitch *createLoginSwitch(QObject *owner);
    Q_INVOKABLE quorvane::NotificationAccess *createNotificationAccess(QObject *owner);
    Q_INVOKABLE static QString spokenCode(const QString &code);

    [[nodiscard]] QString signedInLabel() const;
    [[nodiscard]] AboutModel *about() { return &m_about; }

Q_SIGNALS:
    void signedInLabelChanged();

private:
    AppModel &m_model;
    AppEnvironment m_environment;
    LoginItem &m_loginItem;
    DeviceSignIn::Timings m_signInTimings;
    AboutModel m_about;
};

} // namespace quorvane
