pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import Quorvane.App
import Quorvane.Components

// One block of hours or focus time in a day column. The pointer and the keys only report to
// the column; where the block stands and how it looks come from the column's rows.
Item {
    id: block

    required property int index
    required property bool focusBlock
    required property string label
    required property string tooltip
    required property string accessible
    required property bool editable
    required property real blockY
    required property real blockHeight
    required property bool showsLabel
    required property real fill
    required property real hoverFill
    required property real outline
    required property bool tintedText
    required property real blockOpacity
    required property DayColumnModel day

    readonly property color tint: focusBlock ? Style.purple : Style.accent
    readonly property bool dragged: day.dragRow === index
    readonly property bool hovered: body.containsMouse || topEdge.containsMouse || bottomEdge.containsMouse

    x: 3
    width: parent.width - 6
    y: blockY
    height: blockHeight
    opacity: blockOpacity
    activeFocusOnTab: editable

    Behavior on y {
        enabled: block.dragged
        NumberAnimation { duration: Motion.springDuration(0.15, 0.85); easing: Motion.spring(0.15, 0.85) }
    }
    Behavior on height {
        enabled: block.dragged
        NumberAnimation { duration: Motion.springDuration(0.15, 0.85); easing: Motion.spring(0.15, 0.85) }
    }

    Accessible.role: Accessible.Button
    Accessible.name: accessible
    Accessible.description: qsTr("Delete removes it; Shift+Down extends and Shift+Up shortens it by 30 minutes; Up and Down move it.")
    Accessible.onIncreaseAction: day.extend(index)
    Accessible.onDecreaseAction: day.shorten(index)

    Keys.onPressed: event => {
        if (event.key === Qt.Key_Delete || event.key === Qt.Key_Backspace) {
            day.remove(index)
        } else if (event.key === Qt.Key_Down && (event.modifiers & Qt.ShiftModifier)) {
            day.extend(index)
        } else if (event.key === Qt.Key_Up && (event.modifiers & Qt.ShiftModifier)) {
            day.shorten(index)
        } else if (event.key === Qt.Key_Down) {
            day.nudge(index, 15)
        } else if (event.key === Qt.Key_Up) {
            day.nudge(index, -15)
        } else if (event.key === Qt.Key_Menu) {
            menu.popup(block, 0, block.height)
        } else {
            return
        }
        event.accepted = true
    }

    Rectangle {
        anchors.fill: parent
        radius: Style.radiusM
        opacity: block.hovered && block.editable ? block.hoverFill : block.fill
        gradient: Gradient {
            GradientStop { position: 0; color: Qt.lighter(block.tint, 1.12) }
            GradientStop { position: 1; color: block.tint }
        }
    }
    Rectangle {
        anchors.fill: parent
        radius: Style.radiusM
        color: "transparent"
        visible: block.outline > 0 || block.activeFocus
        border.width: block.activeFocus ? 2 : block.outline
        border.color: block.activeFocus ? palette.highlight : Style.withAlpha(block.tint, 0.9)
    }

    Label {
        x: 4
        y: 4
        width: parent.width - 8
        visible: block.showsLabel
        text: block.label
        textFormat: Text.PlainText
        maximumLineCount: 2
        wrapMode: Text.Wrap
        elide: Text.ElideRight
        font.pixelSize: Typography.caption2
        font.weight: Font.DemiBold
        color: block.tintedText ? block.tint : Style.accentText
    }

    // Moving: the whole block. The edges' zones lie on top and win there.
    MouseArea {
        id: body
        anchors.fill: parent
        enabled: block.editable
        hoverEnabled: true
        acceptedButtons: Qt.LeftButton | Qt.RightButton
        preventStealing: true
        onPressed: mouse => {
            if (mouse.button === Qt.RightButton) {
                menu.popup()
                return
            }
            block.forceActiveFocus()
            const at = mapToItem(block.parent, mouse.x, mouse.y)
            block.day.pressBlock(block.index, at.x, at.y)
        }
        onPositionChanged: mouse => {
            if (pressedButtons & Qt.LeftButton) {
                const at = mapToItem(block.parent, mouse.x, mouse.y)
                block.day.moveTo(at.x, at.y)
            }
        }
        onReleased: mouse => { if (mouse.button === Qt.LeftButton) block.day.release() }
        onCanceled: block.day.cancel()

        ToolTip.visible: containsMouse && !pressed
        ToolTip.delay: 600
        ToolTip.text: block.tooltip
    }
    ToolTip {
        visible: block.dragged
        text: block.tooltip
        y: -height - 4
    }

    // Resizing: a zone along each edge, over the block's own.
    BlockEdge {
        id: topEdge
        objectName: "topEdge"
        block: block
    }
    BlockEdge {
        id: bottomEdge
        objectName: "bottomEdge"
        block: block
        atBottom: true
    }

    Menu {
        id: menu
        PlainMenuItem {
            objectName: "deleteBlock"
            text: qsTr("Delete")
            onTriggered: block.day.remove(block.index)
        }
    }
}
