import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.App

// A counter on a card: a small labelled title with its symbol, and the value large below it.
Rectangle {
    id: root

    property string title
    property string value
    property string symbol
    property color tint: SystemColors.accent

    implicitWidth: column.implicitWidth + 28
    implicitHeight: column.implicitHeight + 28
    radius: 12
    color: palette.base
    border.color: Qt.darker(palette.window, 1.08)
    border.width: 1

    Accessible.role: Accessible.StaticText
    Accessible.name: root.title + ", " + root.value

    ColumnLayout {
        id: column
        anchors.fill: parent
        anchors.margins: 14
        spacing: 6

        RowLayout {
            spacing: 5
            Icon {
                name: root.symbol
                size: 12
                color: SystemColors.secondary
            }
            Label {
                Layout.fillWidth: true
                text: root.title
                textFormat: Text.PlainText
                elide: Text.ElideRight
                font.pixelSize: Typography.caption
                color: SystemColors.secondary
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
        anchors.margins: 10
        width: 8
        height: 8
        radius: 4
        color: root.tint
        opacity: 0.18
    }
}
