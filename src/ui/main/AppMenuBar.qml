import QtQuick
import QtQuick.Controls
import QtQuick.Templates as T
import Quorvane.App
import Quorvane.Components

// The main window's menus, File, Go and Help, read from the command table. Each command's
// action lives here from the start, so its key works whether or not a menu was ever opened;
// a menu makes its items the first time it opens.
MenuBar {
    id: root

    // A command as a menu action, with the command's title, key and enabled state.
    component CommandAction: Action {
        required property Command command
        objectName: command.name
        text: command.title
        shortcut: command.shortcut
        enabled: command.enabled
        onTriggered: command.trigger()
    }

    // A menu of command actions and separators. Its items, and the column and frame that show
    // them, are made the first time it opens: three ready-made menus would cost the window's
    // first frame as much as everything else in the bar.
    component CommandMenu: T.Menu {
        id: menu

        property list<QtObject> entries
        property bool made: false

        implicitWidth: Math.max(implicitBackgroundWidth + leftInset + rightInset,
                                implicitContentWidth + leftPadding + rightPadding)
        implicitHeight: Math.max(implicitBackgroundHeight + topInset + bottomInset,
                                 implicitContentHeight + topPadding + bottomPadding)
        padding: 1
        onAboutToShow: {
            if (made)
                return
            made = true
            const parts = root.menuParts()
            delegate = parts.item
            contentItem = parts.make(parts.list, { menu: menu })
            background = parts.make(parts.frame, { menu: menu })
            for (let i = 0; i < entries.length; ++i) {
                const entry = entries[i]
                if (entry === separator)
                    addItem(parts.make(parts.separator, {}))
                else if (entry.command.available)
                    addAction(entry as Action)
            }
        }
    }
    // What the menus are made of, in a file of its own: it is compiled when a menu first opens
    // rather than with the window.
    property QtObject parts: null
    function menuParts(): QtObject {
        if (!parts)
            parts = Qt.createComponent("MenuParts.qml").createObject(root, { owner: root })
        return parts
    }
    QtObject { id: separator }

    CommandAction { id: shareTimes; command: Commands.get(CommandId.ShareTimes) }
    CommandAction { id: newPoll; command: Commands.get(CommandId.NewPoll) }
    CommandAction { id: settings; command: Commands.get(CommandId.Settings) }
    CommandAction { id: quit; command: Commands.get(CommandId.Quit) }
    CommandAction { id: goToday; command: Commands.get(CommandId.GoToday) }
    CommandAction { id: goBookings; command: Commands.get(CommandId.GoBookings) }
    CommandAction { id: goTypes; command: Commands.get(CommandId.GoTypes) }
    CommandAction { id: goAvailability; command: Commands.get(CommandId.GoAvailability) }
    CommandAction { id: goPolls; command: Commands.get(CommandId.GoPolls) }
    CommandAction { id: goInsights; command: Commands.get(CommandId.GoInsights) }
    CommandAction { id: commandPalette; command: Commands.get(CommandId.CommandPalette) }
    CommandAction { id: joinNext; command: Commands.get(CommandId.JoinNext) }
    CommandAction { id: welcomeGuide; command: Commands.get(CommandId.WelcomeGuide) }
    CommandAction { id: about; command: Commands.get(CommandId.About) }
    CommandAction { id: checkForUpdates; command: Commands.get(CommandId.CheckForUpdates) }
    CommandAction { id: madeBy; command: Commands.get(CommandId.MadeBy) }
    CommandAction { id: makerSite; command: Commands.get(CommandId.MakerSite) }

    CommandMenu {
        objectName: "fileMenu"
        title: qsTr("&File")
        entries: [shareTimes, newPoll, separator, settings, separator, quit]
    }
    CommandMenu {
        objectName: "goMenu"
        title: qsTr("&Go")
        entries: [goToday, goBookings, goTypes, goAvailability, goPolls, goInsights, separator,
            commandPalette, joinNext]
    }
    CommandMenu {
        objectName: "helpMenu"
        title: qsTr("&Help")
        entries: [welcomeGuide, about, checkForUpdates, separator, madeBy, makerSite]
    }
}
