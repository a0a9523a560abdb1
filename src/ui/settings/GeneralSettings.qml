import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.App
import Quorvane.Components
import Quorvane.Onboarding

// Start at login, the tray's countdown, and the keys worth knowing.
SettingsForm {
    id: root

    readonly property LoginSwitch loginSwitch: Setup.createLoginSwitch(root)

    FormSection {
        WrappingSwitch {
            id: loginSwitchControl
            objectName: "loginSwitch"
            Layout.fillWidth: true
            text: qsTr("Open Quorvane at login")
            checked: root.loginSwitch.login
            onToggled: root.loginSwitch.login = checked
            // The item may have refused: show what holds, even when that is no change.
            Connections {
                target: root.loginSwitch
                function onChanged() { loginSwitchControl.checked = root.loginSwitch.login }
            }
        }
        Note {
            objectName: "loginError"
            text: root.loginSwitch.error
            color: Style.red
        }
        WrappingSwitch {
            objectName: "trayNextSwitch"
            Layout.fillWidth: true
            text: qsTr("Show next meeting in the tray")
            checked: App.menuBarShowsNext
            onToggled: App.menuBarShowsNext = checked
        }
    }

    FormSection {
        title: qsTr("Keyboard")

        FactRow {
            objectName: "shareKey"
            label: qsTr("Quick Share (anywhere)")
            value: Commands.shareHotKeyText
        }
        FactRow {
            objectName: "paletteKey"
            label: qsTr("Command palette")
            value: Commands.get(CommandId.CommandPalette).shortcutText
        }
        FactRow {
            objectName: "sectionKeys"
            label: qsTr("Sections")
            value: Commands.get(CommandId.GoToday).shortcutText + " \u2013 " + Commands.get(CommandId.GoInsights).shortcutText
        }
        FactRow {
            objectName: "refreshKey"
            label: qsTr("Refresh")
            value: Commands.get(CommandId.Refresh).shortcutText
        }
        Note {
            text: qsTr("Where the desktop has no global shortcut service, bind a key to this command in your desktop's keyboard settings:")
        }
        SelectableText {
            objectName: "shareCommand"
            Layout.fillWidth: true
            text: "quorvane --share"
            font.family: "monospace"
            font.pixelSize: Typography.caption
            Accessible.name: qsTr("Command for Quick Share: quorvane --share")
        }
    }
}
