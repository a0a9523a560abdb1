pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import Quorvane.App
import Quorvane.Components

// Links side by side, in the accent colour; a click hands the address on.
Row {
    id: root

    property LinkListModel links

    signal activated(url url)

    spacing: Style.spaceXXL
    visible: repeater.count > 0

    Repeater {
        id: repeater
        model: root.links
        delegate: Label {
            id: link
            required property string title
            required property url url

            text: title
            textFormat: Text.PlainText
            font.pixelSize: Typography.callout
            font.underline: hover.hovered
            color: Style.accent
            Accessible.role: Accessible.Link
            Accessible.name: title
            Accessible.onPressAction: root.activated(link.url)

            HoverHandler {
                id: hover
                cursorShape: Qt.PointingHandCursor
            }
            TapHandler {
                onTapped: root.activated(link.url)
            }
        }
    }
}
