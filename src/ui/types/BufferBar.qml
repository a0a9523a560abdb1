pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import Quorvane.App
import Quorvane.Components

// The meeting and its buffers side by side, each as wide as its share of the time; a label
// only where it fits. Changes spring into place.
Item {
    id: root

    required property EventTypeEditorModel editor

    // The first layout places the segments at once; what changes after that springs.
    property bool animated: false

    implicitHeight: 22
    onWidthChanged: if (width > 0) Qt.callLater(() => root.animated = true)
    Accessible.role: Accessible.Graphic
    Accessible.name: preview.accessibleName

    BufferPreviewModel {
        id: preview
        bufferBefore: root.editor.bufferBefore
        minutes: root.editor.minutes
        bufferAfter: root.editor.bufferAfter
        width: root.width
    }

    Repeater {
        model: preview

        Rectangle {
            id: segment

            required property bool shown
            required property real segmentX
            required property real segmentWidth
            required property string label
            required property bool meeting

            objectName: meeting ? "meetingSegment" : "bufferSegment"
            visible: shown
            x: segmentX
            width: segmentWidth
            height: root.height
            radius: 5
            color: meeting ? root.editor.color : Style.withAlpha(Style.secondary, 0.35)

            Behavior on x {
                enabled: root.animated
                NumberAnimation {
                    duration: Motion.springDuration(0.5, 1)
                    easing: Motion.spring(0.5, 1)
                }
            }
            Behavior on width {
                enabled: root.animated
                NumberAnimation {
                    duration: Motion.springDuration(0.5, 1)
                    easing: Motion.spring(0.5, 1)
                }
            }

            Label {
                anchors.centerIn: parent
                visible: segment.label.length > 0
                text: segment.label
                color: Style.accentText
                font.pixelSize: Typography.caption2
                font.bold: true
                Accessible.ignored: true
            }
        }
    }
}
