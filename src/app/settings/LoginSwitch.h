#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace quorvane {

class LoginItem;

// "Open Quorvane at login" in Settings: always shows what the system really did, and says so
// in words when the change couldn't be made.
class LoginSwitch : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made for each settings pane by Setup.createLoginSwitch().")
    Q_PROPERTY(bool login READ login WRITE setLogin NOTIFY changed)
    // Empty while the last change went through.
    Q_PROPERTY(QString error READ error NOTIFY changed)

public:
    // `loginItem` must outlive this object. The switch starts as the system has it.
    explicit LoginSwitch(LoginItem &loginItem, QObject *parent = nullptr);

    [[nodiscard]] bool login() const { return m_login; }
    [[nodiscard]] const QString &error() const { return m_error; }
    void setLogin(bool enabled);

    [[nodiscard]] static QString failureText(bool enabled);

Q_SIGNALS:
    void changed();

private:
    LoginItem &m_loginItem;
    bool m_login = false;
    QString m_error;
};

} // namespace quorvane
