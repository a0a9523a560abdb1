#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

namespace quorvane {

class CommandTable;
class DBusApplication;
class ShellController;

// What a later launch, the desktop, a notification, the hot key or a script asks of the
// running app, by name: a window ("main", "share", "settings", "about", "onboarding") or a
// command ("palette", "refresh", "join-next"). Each runs its row of the command table, so a
// request from outside does exactly what the menu item does.
class Activation : public QObject
{
    Q_OBJECT

public:
    // Both must outlive this.
    Activation(CommandTable &commands, ShellController &shell, QObject *parent = nullptr);

    [[nodiscard]] static const QStringList &names();

    // Does what `name` asks; false for a name it doesn't know. `activationToken`, where the
    // desktop sent one, lets the window come to the front.
    bool activate(const QString &name, const QString &activationToken = {});
    // Answers the bus's requests from now on.
    void serve(DBusApplication &bus);

    // A launch hands `name` to the running app: over the session bus where there is one, else
    // through the local socket. True once that app took it.
    static bool forward(const QString &name);

private:
    CommandTable &m_commands;
    ShellController &m_shell;
};

} // namespace quorvane
