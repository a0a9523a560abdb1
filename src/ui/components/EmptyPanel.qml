import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

// What a screen shows when it has nothing to show: a symbol, a title and a line of help,
// and any buttons given as children below them.
Item {
    id: root

    property string title
    property string symbol
    property string description
    default property alias actions: actionRow.data

    implicitWidth: column.implicitWidth
    implicitHeight: column.implicitHeight + 2 * Style.space3XL

    ColumnLayout {
        id: column
        anchors.centerIn: parent
        width: Math.min(root.width - 2 * Style.space3XL, 380)
        spacing: Style.spaceM

        Icon {
            Layout.alignment: Qt.AlignHCenter
            Layout.bottomMargin: Style.spaceXS
            visible: root.symbol.length > 0
            name: root.symbol
            size: 36
            color: Style.secondary
        }
        Label {
            objectName: "emptyTitle"
            Layout.fillWidth: true
            horizontalAlignment: Text.AlignHCenter
            text: root.title
            textFormat: Text.PlainText
            wrapMode: Text.WordWrap
            font.pixelSize: Typography.title3
            font.bold: true
        }
        Label {
            Layout.fillWidth: true
            visible: root.description.length > 0
            horizontalAlignment: Text.AlignHCenter
            text: root.description
            textFormat: Text.PlainText
            wrapMode: Text.WordWrap
            color: Style.secondary
        }
        Row {
            id: actionRow
            Layout.alignment: Qt.AlignHCenter
            Layout.topMargin: children.length > 0 ? Style.spaceS : 0
            spacing: Style.spaceM
        }
    }
}
