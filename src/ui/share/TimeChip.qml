import QtQuick
import QtQuick.Controls
import Quorvane.Components

// One open time: a star on the day's best, the accent colour when picked.
AbstractButton {
    id: chip

    required property string time
    required property string accessibleName
    required property bool best
    required property bool picked

    objectName: "timeChip"
    focusPolicy: Qt.StrongFocus
    padding: 0
    topPadding: 5
    bottomPadding: 5
    implicitHeight: implicitContentHeight + topPadding + bottomPadding

    Accessible.role: Accessible.Button
    Accessible.name: accessibleName
    Accessible.selectable: true
    Accessible.selected: picked

    contentItem: Item {
        implicitHeight: label.implicitHeight
        implicitWidth: row.implicitWidth
        Row {
            id: row
            anchors.centerIn: parent
            spacing: 3
            Icon {
                objectName: "bestStar"
                anchors.verticalCenter: parent.verticalCenter
                visible: chip.best
                name: "star.fill"
                size: 8
                color: chip.picked ? Style.accentText : Style.yellow
            }
            Label {
                id: label
                text: chip.time
                textFormat: Text.PlainText
                font.pixelSize: Typography.callout
                color: chip.picked ? Style.accentText : palette.windowText
            }
        }
    }

    background: Rectangle {
        radius: 7
        color: chip.picked ? Style.accent : Style.withAlpha(palette.windowText, 0.06)
        gradient: chip.picked ? pickedFill : null
        border.width: chip.visualFocus ? 2 : 0
        border.color: Style.withAlpha(Style.accent, 0.6)
        Gradient {
            id: pickedFill
            GradientStop { position: 0; color: Qt.lighter(Style.accent, 1.12) }
            GradientStop { position: 1; color: Style.accent }
        }
        Rectangle {
            anchors.fill: parent
            radius: parent.radius
            color: chip.pressed ? Style.pressFill : chip.hovered ? Style.hoverFill : "transparent"
        }
    }
}
