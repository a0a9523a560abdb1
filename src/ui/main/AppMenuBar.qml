import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
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

    // A menu item with its key written at the right, as the desktop writes keys.
    component KeyedItem: MenuItem {
        id: item

        readonly property string keys: action && action.command ? action.command.shortcutText : ""

        contentItem: RowLayout {
            spacing: Style.space4XL
            opacity: item.enabled ? 1 : 0.45

            Label {
                Layout.fillWidth: true
                text: item.text
                textFormat: Text.PlainText
                color: item.highlighted ? item.palette.highlightedText : item.palette.text
            }
            Label {
                objectName: "keys"
                visible: text.length > 0
                text: item.keys
                textFormat: Text.PlainText
                color: item.highlighted ? item.palette.highlightedText : item.palette.text
                opacity: 0.7
            }
        }
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
        delegate: Component { KeyedItem {} }
        onAboutToShow: {
            if (made)
                return
            made = true
            contentItem = root.part(menuList, { menu: menu })
            background = root.part(menuFrame, { menu: menu })
            for (let i = 0; i < entries.length; ++i) {
                const entry = entries[i]
                if (entry === separator)
                    addItem(root.part(separatorItem, {}) as MenuSeparator)
                else if (entry.command.available)
                    addAction(entry as Action)
            }
        }
    }
    Component {
        id: menuList
        ListView {
            required property T.Menu menu
            implicitHeight: contentHeight
            model: menu.contentModel
            currentIndex: menu.currentIndex
            interactive: false
        }
    }
    Component {
        id: menuFrame
        Item {
            id: frame
            required property T.Menu menu
            implicitWidth: 200
            implicitHeight: 20
            // A one-pixel shadow down and to the right, under the frame.
            Rectangle {
                anchors.fill: parent
                anchors.topMargin: 1
                anchors.leftMargin: 1
                anchors.bottomMargin: -1
                anchors.rightMargin: -1
                color: Style.withAlpha(frame.menu.palette.shadow, 0.2)
            }
            Rectangle {
                anchors.fill: parent
                color: frame.menu.palette.base
                border.color: Style.windowEdge(frame.menu.palette.window)
            }
        }
    }
    // A part of a menu: owned by the bar, so that it lives as long as the menu, and without a
    // parent item, which the menu takes it into as it is given.
    function part(component: Component, properties: var): Item {
        const made = component.createObject(root, properties) as Item
        made.parent = null
        return made
    }
    QtObject { id: separator }
    Component { id: separatorItem; MenuSeparator {} }

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
