pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import Quorvane.App
import Quorvane.Components

// Popular times: weekdays from Monday down to Sunday, hours across. A cell per weekday and
// hour with bookings, from light blue for the quietest to purple for the busiest; an hour
// without bookings stays empty. The arrow keys walk the cells while the map has the focus.
FocusScope {
    id: root

    required property InsightsViewModel figures
    property int current: -1

    implicitHeight: 7 * 22 + labelHeight
    activeFocusOnTab: true

    readonly property real gutter: 40
    readonly property real labelHeight: 18
    readonly property real columnWidth: (width - gutter) / 24
    readonly property real rowHeight: (height - labelHeight) / 7

    Accessible.role: Accessible.Chart
    Accessible.name: qsTr("Heat map of bookings by weekday and hour")
    Accessible.description: current >= 0 && cells.itemAt(current) ? cells.itemAt(current).accessibleText : ""

    Keys.onLeftPressed: current = Math.max(0, current - 1)
    Keys.onRightPressed: current = Math.min(figures.cells.count - 1, current + 1)
    onActiveFocusChanged: if (activeFocus && current < 0) current = 0

    Repeater {
        model: root.figures.weekdayNames
        delegate: Label {
            required property int index
            required property string modelData
            y: index * root.rowHeight + (root.rowHeight - height) / 2
            width: root.gutter - Style.spaceS
            text: modelData
            font.pixelSize: Typography.caption
            color: Style.secondary
        }
    }

    Repeater {
        model: root.figures.hourMarks
        delegate: Label {
            required property int index
            required property string modelData
            x: root.gutter + index * 3 * root.columnWidth + root.columnWidth / 2 - width / 2
            y: root.height - root.labelHeight + Style.spaceXXS
            text: modelData
            font.pixelSize: Typography.caption2
            color: Style.secondary
        }
    }

    Repeater {
        id: cells
        model: root.figures.cells
        delegate: Rectangle {
            id: cell
            objectName: "heatCell"
            required property int index
            required property int row
            required property int hour
            required property int count
            required property real intensity
            required property string accessibleText

            x: root.gutter + hour * root.columnWidth + root.columnWidth * 0.04
            y: row * root.rowHeight + root.rowHeight * 0.075
            width: root.columnWidth * 0.92
            height: root.rowHeight * 0.85
            radius: 2
            color: Qt.rgba(Style.blue.r + (Style.purple.r - Style.blue.r) * intensity,
                           Style.blue.g + (Style.purple.g - Style.blue.g) * intensity,
                           Style.blue.b + (Style.purple.b - Style.blue.b) * intensity,
                           0.25 + 0.75 * intensity)
            border.width: root.activeFocus && root.current === index ? 2 : 0
            border.color: palette.highlight
            HoverHandler { id: hover }
            ToolTip.visible: hover.hovered || (root.activeFocus && root.current === index)
            ToolTip.text: accessibleText
        }
    }
}
