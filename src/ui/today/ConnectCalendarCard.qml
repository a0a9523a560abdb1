import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.Components

// Asks the host to connect Google Calendar, without which the booking page can't go live.
Rectangle {
    id: root

    signal connect()

    implicitHeight: row.implicitHeight + 2 * Style.spaceXXL
    radius: Style.radiusXL
    color: Style.withAlpha(Style.orange, 0.08)
    border.width: 1
    border.color: Style.withAlpha(Style.orange, 0.3)

    RowLayout {
        id: row
        anchors.fill: parent
        anchors.margins: Style.spaceXXL
        spacing: Style.spaceXXL

        Icon {
            name: "calendar.badge.exclamationmark"
            size: 26
            color: Style.orange
        }
        ColumnLayout {
            Layout.fillWidth: true
            spacing: Style.spaceXXS
            Label {
                text: qsTr("Connect Google Calendar")
                font.pixelSize: Typography.headline
                font.bold: true
            }
            Label {
                Layout.fillWidth: true
                text: qsTr("Your booking page goes live once Quorvane can see your free/busy times.")
                wrapMode: Text.WordWrap
                color: Style.secondary
            }
        }
        ProminentButton {
            objectName: "connectButton"
            text: qsTr("Connect…")
            onClicked: root.connect()
        }
    }
}
