#pragma once

#include <QCoroTask>
#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace quorvane {

class Notifier;

// Whether this desktop shows Quorvane's notifications, for the Notifications pane: asked when
// the pane appears and again by "Enable…". A refusal after "Enable…" leaves the pane saying
// what to install or turn on, since there is no settings page of the system to open.
class NotificationAccess : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made for each settings pane by Setup.createNotificationAccess().")
    Q_PROPERTY(bool authorized READ authorized NOTIFY changed)
    // "Enable…" was answered with no.
    Q_PROPERTY(bool refused READ refused NOTIFY changed)

public:
    // `notifier` must outlive this object. Until the desktop answers, notifications count as on.
    explicit NotificationAccess(Notifier &notifier, QObject *parent = nullptr);

    [[nodiscard]] bool authorized() const { return m_authorized; }
    [[nodiscard]] bool refused() const { return m_refused; }

    // Each time the pane appears: asks whether notifications can be shown.
    Q_INVOKABLE void appear();
    // "Enable…": asks for permission.
    Q_INVOKABLE void enable();

Q_SIGNALS:
    void changed();

private:
    QCoro::Task<> ask(bool request, quint64 generation);

    Notifier &m_notifier;
    bool m_authorized = true;
    bool m_refused = false;
    // Only the answer to the latest question counts.
    quint64 m_generation = 0;
};

} // namespace quorvane
