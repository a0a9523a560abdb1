import QtQuick
import QtQuick.Layouts
import Quorvane.App
import Quorvane.Components

// One page of the first-run guide: a column at the top of the page, visible while its step is
// the current one, fading in and out as the step changes.
Item {
    id: root

    property bool shown: false
    default property alias content: column.data

    opacity: shown ? 1 : 0
    visible: opacity > 0
    enabled: shown

    Behavior on opacity {
        NumberAnimation {
            duration: Motion.springDuration(0.5, 1.0)
            easing: Motion.spring(0.5, 1.0)
        }
    }

    ColumnLayout {
        id: column
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        spacing: Style.spaceXXL
    }
}
