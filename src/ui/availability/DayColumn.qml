pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import Quorvane.App
import Quorvane.Components

// One weekday: its head, sixteen hour rows that take drags on empty space, its blocks, and
// the block being drawn.
Item {
    id: column

    required property int weekday
    required property bool focusMode
    readonly property DayColumnModel model: columnModel

    implicitHeight: 28 + rows.height

    DayColumnModel {
        id: columnModel
        app: App
        weekday: column.weekday
        focusMode: column.focusMode
    }

    Accessible.role: Accessible.Grouping
    Accessible.name: columnModel.title

    Label {
        width: parent.width
        height: 28
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        text: columnModel.heading
        font.pixelSize: Typography.caption
        font.weight: Font.DemiBold
        Accessible.ignored: true
    }

    Item {
        id: rows
        objectName: "dayRows"
        y: 28
        width: parent.width
        height: 16 * 38

        Column {
            anchors.fill: parent
            Accessible.ignored: true
            Repeater {
                model: 16
                delegate: Item {
                    width: rows.width
                    height: 38
                    Rectangle {
                        width: parent.width
                        height: 1
                        color: Style.separator(palette.window)
                        opacity: 0.6
                    }
                }
            }
        }
        Rectangle {
            width: 1
            height: parent.height
            color: Style.separator(palette.window)
        }

        // Drawing a new block on empty space; blocks of the other mode let the press through.
        MouseArea {
            anchors.fill: parent
            preventStealing: true
            onPressed: mouse => columnModel.pressBackground(mouse.x, mouse.y)
            onPositionChanged: mouse => columnModel.moveTo(mouse.x, mouse.y)
            onReleased: columnModel.release()
            onCanceled: columnModel.cancel()
        }

        Repeater {
            model: columnModel
            delegate: Block {
                day: columnModel
            }
        }

        Rectangle {
            objectName: "drawPreview"
            visible: columnModel.drawing
            x: 3
            width: parent.width - 6
            y: columnModel.drawY
            height: columnModel.drawHeight
            radius: Style.radiusM
            color: Style.withAlpha(column.focusMode ? Style.purple : Style.accent, 0.35)
            Label {
                anchors.centerIn: parent
                text: columnModel.drawText
                font.pixelSize: Typography.caption2
                font.bold: true
            }
        }
    }
}
