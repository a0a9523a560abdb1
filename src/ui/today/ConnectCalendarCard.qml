import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.App
import Quorvane.Components

// Asks the host to connect Google Calendar, without which the booking page can't go live.
Rectangle {
    id: root

    signal connect()

    implicitHeight: row.implicitHeight + 32
    radius: 14
    color: Qt.rgba(SystemColors.orange.r, SystemColors.orange.g, SystemColors.orange.b, 0.08)
    border.width: 1
    border.color: Qt.rgba(SystemColors.orange.r, SystemColors.orange.g, SystemColors.orange.b, 0.3)

    RowLayout {
        id: row
        anchors.fill: parent
        anchors.margins: 16
        spacing: 14

        Icon {
            name: "calendar.badge.exclamationmark"
            size: 26
            color: SystemColors.orange
        }
        ColumnLayout {
            Layout.fillWidth: true
            spacing: 3
            Label {
                text: qsTr("Connect Google Calendar")
                font.pixelSize: Typography.headline
                font.bold: true
            }
            Label {
                Layout.fillWidth: true
                text: qsTr("Your booking page goes live once Quorvane can see your free/busy times.")
                wrapMode: Text.WordWrap
                color: SystemColors.secondary
            }
        }
        ProminentButton {
            objectName: "connectButton"
            text: qsTr("Connect…")
            onClicked: root.connect()
        }
    }
}
