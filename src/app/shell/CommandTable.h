#pragma once

#include "shell/Command.h"

#include <QKeySequence>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <memory>

namespace quorvane {

class Updater;

class AppModel;
class ShellController;
class UrlOpener;

// The ids of the command table, for QML (CommandId.Refresh) and C++ alike.
namespace CommandId {
Q_NAMESPACE
QML_ELEMENT

enum Id {
    GoToday,
    GoBookings,
    GoTypes,
    GoAvailability,
    GoPolls,
    GoInsights,
    ShareTimes,
    NewPoll,
    Refresh,
    OpenDashboard,
    OpenBookingPage,
    Settings,
    CommandPalette,
    JoinNext,
    OpenMain,
    WelcomeGuide,
    About,
    CheckForUpdates,
    MadeBy,
    MakerSite,
    Quit,
};
Q_ENUM_NS(Id)
} // namespace CommandId

// Every command of the app, in one table: menus, keys, the toolbar, the tray popover's footer
// and the command palette all read it, so a key is defined once. QML reaches it as Commands.
class CommandTable : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the application and reached as Commands.")
    // The global key that opens Share Times from any application, as this desktop writes it.
    Q_PROPERTY(QString shareHotKeyText READ shareHotKeyText CONSTANT)

public:
    struct Maker {
        QString name; // "Made by {name}"
        QString site; // a web page of the maker's; empty or unsafe: no item
    };

    // Everything passed in must outlive the table.
    CommandTable(AppModel &model, ShellController &shell, const UrlOpener &opener, const Maker &maker,
                 QObject *parent = nullptr);
    // The maker as this build was configured.
    CommandTable(AppModel &model, ShellController &shell, const UrlOpener &opener, QObject *parent = nullptr);

    Q_INVOKABLE [[nodiscard]] quorvane::Command *get(quorvane::CommandId::Id id) const;
    // The Go menu's rows: one per section, in sidebar order.
    Q_INVOKABLE [[nodiscard]] QList<quorvane::Command *> sections() const;
    // Every command the palette lists, in its order.
    Q_INVOKABLE [[nodiscard]] QList<quorvane::Command *> paletteCommands() const;
    [[nodiscard]] const QList<Command *> &all() const { return m_commands; }
    // "Check for Updates…" asks this updater, enabled while a check may start.
    void attachUpdater(Updater *updater);

    // The key of a command in the main window; none for most.
    [[nodiscard]] static QKeySequence keys(CommandId::Id id);
    // Ctrl+Alt+Super+S: Share Times from anywhere.
    [[nodiscard]] static QKeySequence shareHotKey();
    [[nodiscard]] static QString shareHotKeyText();

private:
    QList<Command *> m_commands; // indexed by CommandId::Id
    std::shared_ptr<QPointer<Updater>> m_updater = std::make_shared<QPointer<Updater>>();
};

} // namespace quorvane
