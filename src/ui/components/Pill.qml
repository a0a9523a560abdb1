import QtQuick
import QtQuick.Controls

// A small coloured tag, such as a booking's "Pending" or "Done".
Label {
    id: root

    property color tint: "#8E8E93"

    leftPadding: 7
    rightPadding: 7
    topPadding: 2
    bottomPadding: 2
    color: tint
    font.pixelSize: Typography.caption2
    font.weight: Font.DemiBold
    textFormat: Text.PlainText
    background: Rectangle {
        radius: height / 2
        color: root.tint
        opacity: 0.15
    }
}
