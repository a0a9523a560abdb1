import QtQuick
import Quorvane.Components

// The message as it will be copied; it rises from below and fades in with the first pick.
Item {
    id: preview

    required property string text
    readonly property bool shown: text.length > 0

    implicitHeight: shown ? box.height : 0
    clip: true
    visible: opacity > 0
    opacity: shown ? 1 : 0
    Behavior on opacity { NumberAnimation { duration: 200 } }
    Behavior on implicitHeight { NumberAnimation { duration: 200; easing.type: Easing.OutCubic } }

    Rectangle {
        id: box
        width: preview.width
        height: message.implicitHeight + 2 * Style.spaceL
        y: preview.shown ? 0 : height
        radius: Style.radiusL
        color: Style.withAlpha(palette.windowText, 0.06)
        Behavior on y { NumberAnimation { duration: 200; easing.type: Easing.OutCubic } }

        SelectableText {
            id: message
            objectName: "sharePreview"
            x: Style.spaceL
            y: Style.spaceL
            width: parent.width - 2 * Style.spaceL
            // Keeps its last words while it leaves.
            text: preview.shown ? preview.text : text
            font.pixelSize: Typography.callout
            Accessible.name: qsTr("Message preview")
        }
    }
}
