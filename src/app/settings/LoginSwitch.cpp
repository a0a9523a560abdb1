#include "settings/LoginSwitch.h"

#include "LoginItem.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace quorvane {

namespace {
struct Text {
    Q_DECLARE_TR_FUNCTIONS(LoginSwitch)
};
} // namespace

LoginSwitch::LoginSwitch(LoginItem &loginItem, QObject *parent)
    : QObject(parent)
    , m_loginItem(loginItem)
    , m_login(loginItem.isEnabled())
{}

void LoginSwitch::setLogin(bool enabled)
{
    m_error = m_loginItem.set(enabled) ? QString() : failureText(enabled);
    m_login = m_loginItem.isEnabled();
    // Also when unchanged: the switch the user flipped has to flip back.
    Q_EMIT changed();
}

QString LoginSwitch::failureText(bool enabled)
{
    return enabled ? Text::tr(
               "Couldn't add Quorvane to the programs that start at login: the autostart folder can't be written.")
                   : Text::tr("Couldn't remove Quorvane from the programs that start at login: the autostart folder "
                              "can't be written.");
}

} // namespace quorvane
