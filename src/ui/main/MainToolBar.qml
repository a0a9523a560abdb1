import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.App
import Quorvane.Components

// The window's toolbar: the sidebar toggle, the subtitle, and Quick Share, the command
// palette and Refresh at the right.
ToolBar {
    id: root

    property string subtitle
    property bool sidebarVisible: true
    readonly property Action paletteAction: paletteAction
    readonly property Action refreshAction: refreshAction

    signal toggleSidebar()

    Action {
        id: paletteAction
        text: qsTr("Command Palette")
        shortcut: "Ctrl+K"
        onTriggered: App.showPalette = true
    }
    Action {
        id: refreshAction
        text: qsTr("Refresh")
        shortcut: "Ctrl+R"
        onTriggered: App.refreshNow()
    }

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: 6
        anchors.rightMargin: 6
        spacing: 2

        SymbolButton {
            objectName: "sidebarToggle"
            symbol: "sidebar.left"
            onClicked: root.toggleSidebar()
            Accessible.name: root.sidebarVisible ? qsTr("Hide Sidebar") : qsTr("Show Sidebar")
            ToolTip.visible: hovered
            ToolTip.delay: 600
            ToolTip.text: Accessible.name
        }
        Item {
            Layout.fillWidth: true
        }
        Label {
            objectName: "subtitle"
            Layout.rightMargin: 10
            text: root.subtitle
            textFormat: Text.PlainText
            font.pixelSize: Typography.caption
            color: SystemColors.secondary
        }
        SymbolButton {
            objectName: "quickShareButton"
            symbol: "paperplane"
            text: qsTr("Quick Share")
            display: AbstractButton.IconOnly
            onClicked: Shell.open("share")
            ToolTip.visible: hovered
            ToolTip.delay: 600
            ToolTip.text: qsTr("Share a few open times (Ctrl+Alt+Super+S anywhere)")
        }
        SymbolButton {
            objectName: "paletteButton"
            symbol: "command"
            action: paletteAction
            display: AbstractButton.IconOnly
            ToolTip.visible: hovered
            ToolTip.delay: 600
            ToolTip.text: qsTr("Command palette (%1)").arg(paletteAction.shortcut)
        }
        SymbolButton {
            id: refreshButton
            objectName: "refreshButton"
            symbol: "arrow.clockwise"
            action: refreshAction
            display: AbstractButton.IconOnly
            ToolTip.visible: hovered
            ToolTip.delay: 600
            ToolTip.text: qsTr("Refresh (%1)").arg(refreshAction.shortcut)

            BusyIndicator {
                objectName: "refreshBusy"
                anchors.centerIn: parent
                width: 18
                height: 18
                padding: 0
                // Spins only where it can be seen: a hidden window costs no CPU.
                running: App.loading && root.Window.window !== null && root.Window.window.visible
                visible: App.loading
            }
            // The spinner stands in for the symbol while a refresh runs.
            icon.source: App.loading ? "" : "image://icon/arrow.clockwise?color=" + palette.buttonText.toString().substring(1)
        }
    }
}
