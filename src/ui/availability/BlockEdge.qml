import QtQuick
import Quorvane.App
import Quorvane.Components

// The zone along a block's top or bottom edge that resizes it, with the up-down cursor and,
// while the block is hovered, a small pill.
MouseArea {
    id: edge

    required property Item block // the Block it belongs to
    property bool atBottom

    y: atBottom ? block.height - height : 0
    z: 1
    width: block.width
    height: 10
    enabled: block.editable
    hoverEnabled: true
    cursorShape: Qt.SizeVerCursor
    preventStealing: true
    onPressed: mouse => {
        block.forceActiveFocus()
        const at = mapToItem(block.parent, mouse.x, mouse.y)
        block.day.pressEdge(block.index, atBottom, at.x, at.y)
    }
    onPositionChanged: mouse => {
        if (pressed) {
            const at = mapToItem(block.parent, mouse.x, mouse.y)
            block.day.moveTo(at.x, at.y)
        }
    }
    onReleased: block.day.release()
    onCanceled: block.day.cancel()

    Rectangle {
        anchors.horizontalCenter: parent.horizontalCenter
        y: edge.atBottom ? parent.height - height - 3 : 3
        width: 18
        height: 4
        radius: 2
        color: "white"
        opacity: edge.block.hovered ? 0.9 : 0
    }
}
