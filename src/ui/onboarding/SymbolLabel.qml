import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.Components

// A line of text after a symbol, both in one colour.
RowLayout {
    id: root

    property string text
    property string symbol
    property color color: palette.windowText
    property int pixelSize: Typography.body

    spacing: Style.spaceS
    Accessible.role: Accessible.StaticText
    Accessible.name: root.text

    Icon {
        Layout.alignment: Qt.AlignTop
        Layout.topMargin: 1 // sets the symbol on the first line's capitals, not a space
        name: root.symbol
        size: root.pixelSize + 3
        color: root.color
    }
    Label {
        Layout.fillWidth: true
        text: root.text
        textFormat: Text.PlainText
        wrapMode: Text.WordWrap
        font.pixelSize: root.pixelSize
        color: root.color
        Accessible.ignored: true
    }
}
