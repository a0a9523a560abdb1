import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.App
import Quorvane.Components

// The next meeting with its countdown and join button, or the word that nothing is coming.
// The compact form sits in the tray popover.
Rectangle {
    id: root

    property bool compact: false
    // Off where the window's menu already carries the same keys for the same meeting: two
    // shortcuts on one key would cancel each other out.
    property bool joinShortcutEnabled: true
    readonly property NextMeetingCardModel card: cardModel

    implicitWidth: (card.hasBooking ? meeting.implicitWidth : nothing.implicitWidth) + 2 * padding
    implicitHeight: (card.hasBooking ? meeting.implicitHeight : nothing.implicitHeight) + 2 * padding
    readonly property int padding: compact ? Style.spaceXL : Style.space3XL
    radius: Style.radiusXL
    color: Style.withAlpha(palette.base, 0.85)
    border.width: 1
    border.color: Style.hairline(palette.window)

    NextMeetingCardModel {
        id: cardModel
        app: App
    }

    // The countdown moves between the model's minute ticks; the timer stops with the window.
    Timer {
        objectName: "redrawTimer"
        interval: 30000
        repeat: true
        triggeredOnStart: true
        running: root.visible && root.Window.window !== null && root.Window.window.visible
        onTriggered: cardModel.redraw()
    }

    // Only the side that shows is made.
    Loader {
        id: meeting
        active: root.card.hasBooking
        visible: active
        anchors.fill: parent
        anchors.margins: root.padding
        sourceComponent: RowLayout {
            spacing: Style.spaceXXL

            Rectangle {
                objectName: "typeBar"
                Layout.preferredWidth: 5
                Layout.fillHeight: true
                radius: width / 2
                gradient: Gradient {
                    GradientStop { position: 0.0; color: Qt.lighter(root.card.color, 1.25) }
                    GradientStop { position: 1.0; color: root.card.color }
                }
            }
            ColumnLayout {
                Layout.fillWidth: true
                spacing: Style.spaceXS
                Label {
                    objectName: "caption"
                    text: root.card.caption
                    textFormat: Text.PlainText
                    font.pixelSize: Typography.caption2
                    font.bold: true
                    color: root.card.isNow ? Style.green : Style.secondary
                }
                Label {
                    objectName: "headline"
                    Layout.fillWidth: true
                    text: root.card.headline
                    textFormat: Text.PlainText
                    elide: Text.ElideRight
                    // The popover is narrow: the compact card gives its texts a second line.
                    wrapMode: root.compact ? Text.Wrap : Text.NoWrap
                    maximumLineCount: root.compact ? 2 : 1
                    font.pixelSize: root.compact ? Typography.headline : Typography.title3
                    font.weight: root.compact ? Font.Bold : Font.DemiBold
                }
                Label {
                    objectName: "timeRange"
                    Layout.fillWidth: true
                    text: root.card.timeRange
                    textFormat: Text.PlainText
                    elide: Text.ElideRight
                    wrapMode: root.compact ? Text.Wrap : Text.NoWrap
                    maximumLineCount: root.compact ? 2 : 1
                    font.pixelSize: Typography.callout
                    color: Style.secondary
                }
            }
            ProminentButton {
                id: joinButton
                objectName: "joinButton"
                visible: root.card.hasLink
                text: qsTr("Join Meet")
                symbol: "video.fill"
                font.pixelSize: root.compact ? Typography.callout : Typography.body
                leftPadding: root.compact ? Style.spaceM : Style.spaceXL
                rightPadding: root.compact ? Style.spaceM : Style.spaceXL
                onClicked: root.card.join()
                Accessible.name: root.card.joinName
                ToolTip.visible: hovered
                ToolTip.delay: 600
                ToolTip.text: joinShortcut.nativeText
            }
        }
    }

    Shortcut {
        id: joinShortcut
        sequence: "Ctrl+Shift+J"
        enabled: root.joinShortcutEnabled && root.card.hasBooking && root.card.hasLink && root.visible
        onActivated: root.card.join()
    }

    Loader {
        id: nothing
        active: !root.card.hasBooking
        visible: active
        anchors.centerIn: parent
        width: parent.width - 2 * root.padding
        sourceComponent: ColumnLayout {
            objectName: "noMeeting"
            spacing: Style.spaceS

            Icon {
                Layout.alignment: Qt.AlignHCenter
                name: "calendar.badge.checkmark"
                size: root.compact ? 22 : 28
                color: Style.secondary
            }
            Label {
                Layout.alignment: Qt.AlignHCenter
                text: qsTr("No upcoming meetings")
                font.pixelSize: Typography.headline
                font.bold: true
            }
            Label {
                Layout.fillWidth: true
                horizontalAlignment: Text.AlignHCenter
                text: qsTr("New bookings show up here automatically.")
                wrapMode: Text.WordWrap
                font.pixelSize: Typography.callout
                color: Style.secondary
            }
        }
    }
}
