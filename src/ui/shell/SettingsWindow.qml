import QtQuick
import QtQuick.Controls
import Quorvane.Components

// The app's settings: account, notifications, the tray, the server.
ApplicationWindow {
    id: window

    objectName: "settings"
    title: qsTr("Settings")
    width: 620
    height: 460
    minimumWidth: 480
    minimumHeight: 360

    EmptyPanel {
        objectName: "placeholder"
        anchors.fill: parent
        title: qsTr("Settings")
        symbol: "gearshape"
        description: qsTr("Settings aren't available in this version yet.")
    }

    Shortcut {
        sequences: [StandardKey.Close]
        onActivated: window.close()
    }
}
