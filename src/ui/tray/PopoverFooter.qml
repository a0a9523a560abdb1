import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.App
import Quorvane.Components

// The way to everything else, shown signed in or not. Windows open through the popover,
// which makes way for them; the rest runs its command directly.
RowLayout {
    id: root

    readonly property Command openMain: Commands.get(CommandId.OpenMain)
    readonly property Command refresh: Commands.get(CommandId.Refresh)
    readonly property Command settings: Commands.get(CommandId.Settings)
    readonly property Command quit: Commands.get(CommandId.Quit)

    signal openWindow(int window)

    spacing: Style.spaceXXS

    Button {
        objectName: "openMain"
        flat: true
        text: root.openMain.title
        icon.source: Style.icon(root.openMain.symbol, palette.buttonText)
        icon.color: "transparent"
        onClicked: root.openWindow(AppWindow.Main)
    }
    Item { Layout.fillWidth: true }
    FooterButton {
        objectName: "refresh"
        symbol: root.refresh.symbol
        label: root.refresh.title
        onClicked: root.refresh.trigger()
    }
    FooterButton {
        objectName: "settings"
        symbol: root.settings.symbol
        label: qsTr("Settings")
        onClicked: root.openWindow(AppWindow.Settings)
    }
    FooterButton {
        objectName: "quit"
        symbol: root.quit.symbol
        label: root.quit.title
        toolTip: qsTr("Quit Quorvane")
        onClicked: root.quit.trigger()
    }
}
