import QtQuick
import QtQuick.Controls
import Quorvane.App
import Quorvane.Components

// The frame around all screens: sidebar, banner, the current section.
ApplicationWindow {
    id: window

    title: qsTr("Quorvane")
    width: 1180
    height: 760
    minimumWidth: 940
    minimumHeight: 620

    EmptyPanel {
        anchors.fill: parent
        title: App.section
        description: App.needsSignIn ? qsTr("Not signed in") : qsTr("Signed in")
    }
}
