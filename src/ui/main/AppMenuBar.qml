pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.App

// The main window's menus: File, Go and Help. Every item with a key works while the
// window is active, whether or not its menu is open.
MenuBar {
    id: root

    // The toolbar's palette action, so that Ctrl+K has one owner; without it the item
    // opens the palette by itself and has no key.
    property Action paletteAction

    AppMenuModel {
        id: menuModel
    }

    // A menu item with its key written at the right.
    component KeyedItem: MenuItem {
        id: item

        property string keys: action && action.shortcut ? String(action.shortcut) : ""

        contentItem: RowLayout {
            spacing: 24
            opacity: item.enabled ? 1 : 0.45

            Label {
                Layout.fillWidth: true
                text: item.text
                textFormat: Text.PlainText
                color: item.highlighted ? item.palette.highlightedText : item.palette.text
            }
            Label {
                objectName: "keys"
                text: menuModel.shortcutText(item.keys)
                textFormat: Text.PlainText
                color: item.highlighted ? item.palette.highlightedText : item.palette.text
                opacity: 0.7
            }
        }
    }

    Menu {
        objectName: "fileMenu"
        title: qsTr("&File")
        delegate: KeyedItem {}

        Action {
            objectName: "shareTimes"
            text: qsTr("Share Times…")
            shortcut: "Ctrl+Shift+S"
            onTriggered: Shell.open("share")
        }
        Action {
            objectName: "newPoll"
            text: qsTr("New Poll")
            shortcut: "Ctrl+Shift+N"
            // The sheet belongs to the Polls screen, which must be showing first.
            onTriggered: {
                App.section = "polls"
                App.showNewPoll = true
            }
        }
        MenuSeparator {}
        Action {
            objectName: "settings"
            text: qsTr("Settings…")
            shortcut: "Ctrl+,"
            onTriggered: Shell.open("settings")
        }
        MenuSeparator {}
        Action {
            objectName: "quit"
            text: qsTr("Quit")
            shortcut: "Ctrl+Q"
            onTriggered: Shell.quit()
        }
    }

    Menu {
        id: goMenu
        objectName: "goMenu"
        title: qsTr("&Go")
        delegate: KeyedItem {}

        Instantiator {
            model: SectionListModel {
                app: App
            }
            // Roles: sectionId, title, and shortcut, the digit (which an Action's own
            // shortcut property would hide, hence the model object).
            delegate: Action {
                required property var model
                objectName: "go." + model.sectionId
                text: model.title
                shortcut: menuModel.sectionShortcut(model.shortcut)
                onTriggered: App.section = model.sectionId
            }
            onObjectAdded: (index, object) => goMenu.insertAction(index, object as Action)
            onObjectRemoved: (index, object) => goMenu.removeAction(object as Action)
        }
        MenuSeparator {}
        KeyedItem {
            objectName: "commandPalette"
            text: qsTr("Command Palette…")
            action: root.paletteAction
            keys: root.paletteAction ? String(root.paletteAction.shortcut) : ""
            onTriggered: {
                if (!root.paletteAction)
                    App.showPalette = true
            }
        }
        Action {
            objectName: "joinNext"
            text: qsTr("Join Next Meeting")
            shortcut: "Ctrl+Shift+J"
            enabled: App.canJoinNext
            onTriggered: App.joinNext()
        }
    }

    Menu {
        objectName: "helpMenu"
        title: qsTr("&Help")
        delegate: KeyedItem {}

        Action {
            objectName: "welcomeGuide"
            text: qsTr("Welcome Guide")
            onTriggered: Shell.open("onboarding")
        }
        Action {
            objectName: "about"
            text: qsTr("About Quorvane")
            onTriggered: Shell.open("about")
        }
        Action {
            objectName: "checkForUpdates"
            text: qsTr("Check for Updates…")
            enabled: false
        }
        MenuSeparator {}
        Action {
            objectName: "madeBy"
            text: menuModel.madeBy
            onTriggered: Shell.open("about")
        }
        KeyedItem {
            objectName: "makerSite"
            text: menuModel.makerSiteTitle
            visible: menuModel.makerSite.toString().length > 0
            enabled: visible
            height: visible ? implicitHeight : 0
            onTriggered: Qt.openUrlExternally(menuModel.makerSite)
        }
    }
}
