import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

// A counter on a card: a small labelled title with its symbol, and the value large below it.
Rectangle {
    id: root

    property string title
    property string value
    property string symbol
    property color tint: Style.accent

    implicitWidth: column.implicitWidth + 2 * Style.spaceXXL
    implicitHeight: column.implicitHeight + 2 * Style.spaceXXL
    radius: Style.radiusXL
    color: palette.base
    border.color: Style.hairline(palette.window)
    border.width: 1

    Accessible.role: Accessible.StaticText
    Accessible.name: root.title + ", " + root.value

    ColumnLayout {
        id: column
        anchors.fill: parent
        anchors.margins: Style.spaceXXL
        spacing: Style.spaceS

        RowLayout {
            spacing: Style.spaceXS
            Icon {
                name: root.symbol
                size: 12
                color: Style.secondary
            }
            Label {
                Layout.fillWidth: true
                text: root.title
                textFormat: Text.PlainText
                elide: Text.ElideRight
                font.pixelSize: Typography.caption
                color: Style.secondary
                Accessible.ignored: true
            }
        }
        Label {
            text: root.value
            textFormat: Text.PlainText
            font.pixelSize: Typography.title
            font.weight: Font.DemiBold
            Accessible.ignored: true
        }
    }

    Rectangle {
        anchors.top: parent.top
        anchors.right: parent.right
        anchors.margins: Style.spaceL
        width: 8
        height: 8
        radius: width / 2
        color: root.tint
        opacity: Style.dark ? 0.4 : 0.18
    }
}
