import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.App
import Quorvane.Components

// When the meeting is, in the host's time and the guest's, where it happens and since when
// it is booked.
Card {
    id: root

    required property BookingDetailModel detail

    spacing: Style.spaceL

    FactLine {
        Layout.fillWidth: true
        label: qsTr("When")
        symbol: "clock"
        SelectableText {
            objectName: "whenText"
            width: parent.width
            text: root.detail.when
        }
    }
    FactLine {
        Layout.fillWidth: true
        label: qsTr("Their time")
        symbol: "globe"
        SelectableText {
            objectName: "theirTimeText"
            width: parent.width
            text: root.detail.theirTime
        }
    }
    FactLine {
        Layout.fillWidth: true
        visible: root.detail.meet.length > 0
        label: qsTr("Meet")
        symbol: "video"
        Label {
            objectName: "meetLink"
            width: parent.width
            visible: root.detail.meetURL.toString().length > 0
            text: root.detail.meet
            textFormat: Text.PlainText
            elide: Text.ElideMiddle
            color: palette.link
            font.underline: linkArea.containsMouse
            Accessible.role: Accessible.Link
            Accessible.name: text
            Accessible.onPressAction: root.detail.join()
            MouseArea {
                id: linkArea
                anchors.fill: parent
                hoverEnabled: true
                cursorShape: Qt.PointingHandCursor
                onClicked: root.detail.join()
            }
        }
    }
    FactLine {
        Layout.fillWidth: true
        visible: root.detail.booked.length > 0
        label: qsTr("Booked")
        symbol: "sparkles"
        Label {
            objectName: "bookedText"
            width: parent.width
            text: root.detail.booked
            textFormat: Text.PlainText
        }
    }
}
