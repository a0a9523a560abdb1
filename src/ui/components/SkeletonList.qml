pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import Quorvane.App

// Grey bars in place of a list that is still loading, with a light sweeping across them.
// The sweep runs only while the list is on a shown window, so a hidden window costs nothing.
Item {
    id: root

    property int rows: 5
    property real phase: -1
    readonly property bool animating: shimmer.running

    implicitWidth: 260
    implicitHeight: column.implicitHeight
    clip: true

    Accessible.role: Accessible.StaticText
    Accessible.name: qsTr("Loading")

    Column {
        id: column
        width: parent.width
        spacing: Style.spaceXXL

        Repeater {
            model: Math.max(0, root.rows)

            Row {
                id: bars
                required property int index
                spacing: Style.spaceXL
                Accessible.ignored: true

                Rectangle {
                    width: SkeletonMetrics.firstBarWidth(bars.index)
                    height: 12
                    radius: Style.radiusS
                    color: palette.mid
                    opacity: 0.6
                    anchors.verticalCenter: parent.verticalCenter
                }
                Rectangle {
                    width: SkeletonMetrics.secondBarWidth(bars.index)
                    height: 10
                    radius: Style.radiusS
                    color: palette.mid
                    opacity: 0.6
                    anchors.verticalCenter: parent.verticalCenter
                }
            }
        }
    }

    Rectangle {
        width: root.width / 2
        height: root.height
        x: root.phase * root.width * 1.5
        gradient: Gradient {
            orientation: Gradient.Horizontal
            GradientStop { position: 0.0; color: "#00ffffff" }
            GradientStop { position: 0.5; color: "#40ffffff" }
            GradientStop { position: 1.0; color: "#00ffffff" }
        }
    }

    NumberAnimation {
        id: shimmer
        target: root
        property: "phase"
        from: -1
        to: 1
        duration: 1300
        loops: Animation.Infinite
        running: root.visible && root.rows > 0 && root.Window.window !== null && root.Window.window.visible
    }
}
