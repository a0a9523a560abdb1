import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.App
import Quorvane.Components

// The way to everything else, shown signed in or not.
RowLayout {
    id: root

    signal openMain()
    signal openSettings()

    spacing: 2

    Button {
        objectName: "openMain"
        flat: true
        text: qsTr("Open Quorvane")
        icon.source: "image://icon/macwindow?color=" + palette.buttonText.toString().substring(1)
        icon.color: "transparent"
        onClicked: root.openMain()
    }
    Item { Layout.fillWidth: true }
    FooterButton {
        objectName: "refresh"
        symbol: "arrow.clockwise"
        label: qsTr("Refresh")
        onClicked: App.refreshNow()
    }
    FooterButton {
        objectName: "settings"
        symbol: "gearshape"
        label: qsTr("Settings")
        onClicked: root.openSettings()
    }
    FooterButton {
        objectName: "quit"
        symbol: "power"
        label: qsTr("Quit")
        toolTip: qsTr("Quit Quorvane")
        onClicked: Shell.quit()
    }
}
