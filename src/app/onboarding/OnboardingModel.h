#pragma once

#include <QCoroTask>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace quorvane {

class LoginItem;
class Notifier;
class Preferences;

// The state of one first-run window: which of the four steps shows, and the two switches,
// which always show what the system really did rather than what was asked for.
class OnboardingModel : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made for each first-run window by Setup.createOnboarding().")
    Q_PROPERTY(int step READ step NOTIFY stepChanged)
    Q_PROPERTY(int steps READ steps CONSTANT)
    Q_PROPERTY(bool canGoBack READ canGoBack NOTIFY stepChanged)
    Q_PROPERTY(QString primaryLabel READ primaryLabel NOTIFY stepChanged)
    Q_PROPERTY(QString stepLabel READ stepLabel NOTIFY stepChanged)
    Q_PROPERTY(bool login READ login WRITE setLogin NOTIFY loginChanged)
    Q_PROPERTY(bool notif READ notif WRITE setNotif NOTIFY notifChanged)
    Q_PROPERTY(QString paletteTip READ paletteTip CONSTANT)
    Q_PROPERTY(QString shareTip READ shareTip CONSTANT)

public:
    static constexpr int stepCount = 4;

    // All three must outlive this object. The login switch starts as the system has it.
    OnboardingModel(Preferences &preferences, Notifier &notifier, LoginItem &loginItem, QObject *parent = nullptr);

    [[nodiscard]] int step() const { return m_step; }
    [[nodiscard]] int steps() const { return stepCount; }
    [[nodiscard]] bool canGoBack() const { return m_step > 0; }
    [[nodiscard]] QString primaryLabel() const;
    [[nodiscard]] QString stepLabel() const;
    [[nodiscard]] bool login() const { return m_login; }
    [[nodiscard]] bool notif() const { return m_notif; }
    [[nodiscard]] QString paletteTip() const;
    [[nodiscard]] QString shareTip() const;

    // Asks the system for the change, then shows the state it ended in; a failure has no message.
    void setLogin(bool enabled);
    // Turning on asks for permission and shows the answer; turning off only turns off.
    void setNotif(bool enabled);

    Q_INVOKABLE void back();
    // "Continue"; on the last step "Get Started": the guide counts as done and finished() asks
    // for the window to close.
    Q_INVOKABLE void advance();
    // Each time the window appears: back to the first step, and both switches as the system
    // has them (notifications once the desktop answered).
    Q_INVOKABLE void appear();

Q_SIGNALS:
    void stepChanged();
    void loginChanged();
    void notifChanged();
    void finished();

private:
    enum class Ask { current, permission };
    QCoro::Task<> askNotifier(Ask ask, quint64 generation);
    void setStep(int step);
    void showNotif(bool value);

    Preferences &m_preferences;
    Notifier &m_notifier;
    LoginItem &m_loginItem;
    int m_step = 0;
    bool m_login = false;
    bool m_notif = false;
    // Only the answer to the latest question about notifications moves the switch.
    quint64 m_notifGeneration = 0;
};

} // namespace quorvane
