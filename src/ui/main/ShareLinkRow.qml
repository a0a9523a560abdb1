import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.App
import Quorvane.Components

// One event type's public link: a click puts it on the clipboard.
ItemDelegate {
    id: row

    required property int index
    required property string title
    required property color typeColor
    required property string toolTip
    required property string accessibleName

    signal copy(int row)

    implicitHeight: 28
    leftPadding: 10
    rightPadding: 8
    topPadding: 0
    bottomPadding: 0
    focusPolicy: Qt.NoFocus
    onClicked: copy(index)

    ToolTip.visible: hovered
    ToolTip.delay: 600
    ToolTip.text: toolTip
    Accessible.role: Accessible.Button
    Accessible.name: accessibleName

    background: Rectangle {
        radius: 6
        color: row.down ? Qt.rgba(0, 0, 0, 0.09) : row.hovered ? Qt.rgba(0, 0, 0, 0.05) : "transparent"
    }

    contentItem: RowLayout {
        spacing: 8
        TypeDot {
            color: row.typeColor
            size: 9
        }
        Label {
            Layout.fillWidth: true
            text: row.title
            textFormat: Text.PlainText
            elide: Text.ElideRight
        }
        Icon {
            name: "link"
            size: 11
            color: Qt.rgba(0.56, 0.56, 0.58, 0.7)
        }
    }
}
