import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

// What a screen shows when it has nothing to show: a title, a symbol and a line of help.
Item {
    id: root

    property string title
    property string symbol
    property string description

    ColumnLayout {
        anchors.centerIn: parent
        width: Math.min(parent.width - 40, 380)
        spacing: 8

        Label {
            Layout.fillWidth: true
            horizontalAlignment: Text.AlignHCenter
            text: root.title
            textFormat: Text.PlainText
            font.pixelSize: 20
            font.bold: true
        }
        Label {
            Layout.fillWidth: true
            horizontalAlignment: Text.AlignHCenter
            text: root.description
            textFormat: Text.PlainText
            wrapMode: Text.WordWrap
            opacity: 0.65
        }
    }
}
