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
    leftPadding: Style.spaceL
    rightPadding: Style.spaceM
    topPadding: 0
    bottomPadding: 0
    focusPolicy: FocusPolicy.NoFocus
    onClicked: copy(index)

    ToolTip.visible: hovered
    ToolTip.delay: 600
    ToolTip.text: toolTip
    Accessible.role: Accessible.Button
    Accessible.name: accessibleName

    background: Rectangle {
        radius: Style.radiusM
        color: row.down ? Style.pressFill : row.hovered ? Style.hoverFill : "transparent"
    }

    contentItem: RowLayout {
        spacing: Style.spaceM
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
            color: Style.withAlpha(Style.secondary, 0.7)
        }
    }
}
