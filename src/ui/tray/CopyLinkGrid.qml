pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.App
import Quorvane.Components

// One button per active event type, two to a row: a click copies the type's public link.
GridLayout {
    id: root

    columns: 2
    columnSpacing: 6
    rowSpacing: 6

    TypeLinksModel {
        id: links
        app: App
    }

    Repeater {
        model: links
        delegate: ItemDelegate {
            id: link
            objectName: "copyLink"
            required property int index
            required property string title
            required property string minutes
            required property color typeColor
            required property string shortAccessibleName

            Layout.fillWidth: true
            Layout.preferredWidth: 1
            implicitHeight: 28
            leftPadding: Style.spaceM
            rightPadding: Style.spaceM
            topPadding: 0
            bottomPadding: 0
            focusPolicy: Qt.NoFocus
            onClicked: links.copyLink(index)
            Accessible.role: Accessible.Button
            Accessible.name: shortAccessibleName

            background: Rectangle {
                radius: Style.radiusM
                color: link.down ? Style.pressFill : link.hovered ? Style.hoverFill : "transparent"
            }
            contentItem: RowLayout {
                spacing: Style.spaceS
                TypeDot {
                    color: link.typeColor
                    size: 8
                }
                Label {
                    Layout.fillWidth: true
                    text: link.title
                    textFormat: Text.PlainText
                    elide: Text.ElideRight
                    font.pixelSize: Typography.callout
                }
                Label {
                    text: link.minutes
                    font.pixelSize: Typography.caption
                    color: Style.secondary
                }
            }
        }
    }
}
