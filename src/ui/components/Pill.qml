import QtQuick
import QtQuick.Controls

// A small coloured tag, such as a booking's "Pending" or "Done".
Label {
    id: root

    property color tint: Style.secondary

    leftPadding: Style.spaceS
    rightPadding: Style.spaceS
    topPadding: Style.spaceXXS
    bottomPadding: Style.spaceXXS
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
