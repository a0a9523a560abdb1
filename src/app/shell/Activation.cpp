#include "shell/Activation.h"

#include "linux/DBusApplication.h"
#include "shell/AppWindow.h"
#include "shell/CommandTable.h"
#include "shell/ShellController.h"
#include "shell/SingleInstance.h"

#include <QDBusConnection>

using namespace Qt::StringLiterals;

namespace quorvane {

namespace {

struct Row {
    QString name;
    CommandId::Id command;
};

// Every window a launch may name, and the commands scripts and the desktop's actions use.
const QList<Row> &rows()
{
    static const QList<Row> table{
        {u"main"_s, CommandId::OpenMain},           {u"share"_s, CommandId::ShareTimes},
        {u"settings"_s, CommandId::Settings},       {u"about"_s, CommandId::About},
        {u"onboarding"_s, CommandId::WelcomeGuide}, {u"palette"_s, CommandId::CommandPalette},
        {u"refresh"_s, CommandId::Refresh},         {u"join-next"_s, CommandId::JoinNext},
    };
    return table;
}

} // namespace

Activation::Activation(CommandTable &commands, ShellController &shell, QObject *parent)
    : QObject(parent)
    , m_commands(commands)
    , m_shell(shell)
{}

const QStringList &Activation::names()
{
    static const QStringList out = [] {
        QStringList names;
        for (const Row &row : rows())
            names.append(row.name);
        return names;
    }();
    return out;
}

bool Activation::activate(const QString &name, const QString &activationToken)
{
    const auto row = std::find_if(rows().cbegin(), rows().cend(), [&](const Row &r) { return r.name == name; });
    if (row == rows().cend())
        return false;
    if (!activationToken.isEmpty())
        qputenv("XDG_ACTIVATION_TOKEN", activationToken.toUtf8());
    // The palette lives in the main window, which may be hidden in the tray.
    if (row->command == CommandId::CommandPalette)
        m_shell.open(AppWindow::Main);
    m_commands.get(row->command)->trigger();
    return true;
}

void Activation::serve(DBusApplication &bus)
{
    connect(&bus, &DBusApplication::activateRequested, this,
            [this](const QString &token) { activate(u"main"_s, token); });
    connect(&bus, &DBusApplication::actionRequested, this, &Activation::activate);
    // No link of ours opens a window of its own yet: the app comes to the front.
    connect(&bus, &DBusApplication::openRequested, this,
            [this](const QStringList &, const QString &token) { activate(u"main"_s, token); });
}

bool Activation::forward(const QString &name)
{
    // A connection of its own, closed again: the launch's application object is gone soon.
    const QString label = u"quorvane-launch"_s;
    bool taken = false;
    {
        QDBusConnection bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, label);
        if (bus.isConnected())
            taken = DBusApplication::ask(bus, name == "main"_L1 ? QString() : name);
        else
            taken = SingleInstance(SingleInstance::defaultPath()).forward(name);
    }
    QDBusConnection::disconnectFromBus(label);
    return taken;
}

} // namespace quorvane
