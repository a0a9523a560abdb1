pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.App
import Quorvane.Components

// Bookings per week: a bar per week, oldest at the left, a mark under every second week.
// Left and Right walk the bars while the chart has the focus; the tool tip tells the count.
FocusScope {
    id: root

    required property FigureRows weeks
    property int current: -1

    implicitHeight: 200
    activeFocusOnTab: true

    Accessible.role: Accessible.Chart
    Accessible.name: qsTr("Bar chart of bookings per week for the last 12 weeks")
    Accessible.description: current >= 0 ? bars.itemAt(current).accessibleText : ""

    Keys.onLeftPressed: current = Math.max(0, current - 1)
    Keys.onRightPressed: current = Math.min(weeks.count - 1, current < 0 ? weeks.count - 1 : current + 1)
    onActiveFocusChanged: if (activeFocus && current < 0) current = weeks.count - 1

    readonly property real labelHeight: 18
    readonly property real plotHeight: height - labelHeight

    // Grid lines at the marked weeks.
    Row {
        anchors.fill: parent
        Repeater {
            model: root.weeks
            delegate: Item {
                required property bool marked
                width: root.width / Math.max(1, root.weeks.count)
                height: root.plotHeight
                Rectangle {
                    visible: parent.marked
                    anchors.horizontalCenter: parent.horizontalCenter
                    width: 1
                    height: parent.height
                    color: Style.rule(palette.windowText)
                }
            }
        }
    }

    Row {
        anchors.fill: parent
        Repeater {
            id: bars
            model: root.weeks
            delegate: Item {
                id: week
                required property int index
                required property string label
                required property int count
                required property real share
                required property bool marked
                required property string accessibleText

                width: root.width / Math.max(1, root.weeks.count)
                height: root.height

                Rectangle {
                    objectName: "weekBar"
                    anchors.horizontalCenter: parent.horizontalCenter
                    y: root.plotHeight - height
                    width: parent.width * 0.6
                    height: week.count > 0 ? Math.max(2, root.plotHeight * 0.92 * week.share) : 0
                    radius: Style.radiusS
                    border.width: root.current === week.index && root.activeFocus ? 2 : 0
                    border.color: palette.highlight
                    gradient: Gradient {
                        GradientStop { position: 0; color: Qt.lighter(Style.accent, 1.25) }
                        GradientStop { position: 1; color: Style.accent }
                    }
                    HoverHandler { id: hover }
                    ToolTip.visible: hover.hovered || (root.activeFocus && root.current === week.index)
                    ToolTip.text: week.accessibleText
                }
                Label {
                    visible: week.marked
                    anchors.horizontalCenter: parent.horizontalCenter
                    anchors.bottom: parent.bottom
                    text: week.label
                    font.pixelSize: Typography.caption2
                    color: Style.secondary
                }
            }
        }
    }
}
