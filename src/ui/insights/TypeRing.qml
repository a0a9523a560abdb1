pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import QtQuick.Shapes
import Quorvane.App
import Quorvane.Components

// Bookings by event type: a ring of sectors in the types' colours, and below it a legend
// that gives each type's count as text.
ColumnLayout {
    id: root

    required property FigureRows types

    spacing: Style.spaceXL

    Item {
        Layout.fillWidth: true
        Layout.preferredHeight: 160
        Accessible.role: Accessible.Chart
        Accessible.name: qsTr("Ring chart of bookings by event type")

        Shape {
            id: ring
            readonly property real outer: Math.min(parent.width, parent.height) / 2
            readonly property real thickness: outer * 0.4
            anchors.centerIn: parent
            width: outer * 2
            height: outer * 2
            antialiasing: true

            Instantiator {
                model: root.types
                delegate: ShapePath {
                    required property color typeColor
                    required property real start
                    required property real sweep
                    fillColor: "transparent"
                    strokeColor: typeColor
                    strokeWidth: ring.thickness
                    capStyle: ShapePath.FlatCap
                    PathAngleArc {
                        centerX: ring.outer
                        centerY: ring.outer
                        radiusX: ring.outer - ring.thickness / 2
                        radiusY: ring.outer - ring.thickness / 2
                        startAngle: start - 90
                        sweepAngle: sweep
                    }
                }
                onObjectAdded: (index, object) => ring.data.push(object)
            }
        }
    }

    Repeater {
        model: root.types
        delegate: RowLayout {
            required property string title
            required property color typeColor
            required property int count
            Layout.fillWidth: true
            spacing: Style.spaceS
            TypeDot {
                size: 9
                color: parent.typeColor
            }
            Label {
                Layout.fillWidth: true
                text: parent.title
                textFormat: Text.PlainText
                elide: Text.ElideRight
                font.pixelSize: Typography.callout
            }
            Label {
                text: parent.count
                font.pixelSize: Typography.callout
            }
        }
    }
}
