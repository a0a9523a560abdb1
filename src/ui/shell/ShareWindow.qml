import QtQuick
import QtQuick.Controls
import Quorvane.Components

// "Share Times": picks a few open times and copies them as a message.
ApplicationWindow {
    id: window

    objectName: "share"
    title: qsTr("Share Times")
    width: 560
    height: 560
    minimumWidth: 420
    minimumHeight: 360

    EmptyPanel {
        objectName: "placeholder"
        anchors.fill: parent
        title: qsTr("Share Times")
        symbol: "paperplane"
        description: qsTr("Picking and sharing open times isn't available in this version yet.")
    }

    Shortcut {
        sequences: [StandardKey.Close]
        onActivated: window.close()
    }
}
