import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.App
import Quorvane.Components

// One section in the sidebar: its symbol, its title and, when there is something to count,
// a badge. Choosing the row that is already chosen changes nothing.
ItemDelegate {
    id: row

    required property int index
    required property string sectionId
    required property string title
    required property string symbol
    required property string hint
    required property int badge

    signal activated(string section)

    readonly property bool selected: App.section === sectionId

    objectName: "sectionRow_" + sectionId
    highlighted: selected
    focusPolicy: FocusPolicy.NoFocus
    implicitHeight: 28
    leftPadding: Style.spaceM
    rightPadding: Style.spaceM
    topPadding: 0
    bottomPadding: 0
    onClicked: activated(sectionId)

    Accessible.role: Accessible.ListItem
    Accessible.name: title
    Accessible.description: hint
    Accessible.selected: selected

    background: Rectangle {
        radius: Style.radiusM
        color: row.selected ? Style.accent : row.hovered ? Style.hoverFill : "transparent"
    }

    contentItem: RowLayout {
        spacing: Style.spaceM
        Icon {
            name: row.symbol
            size: 15
            color: row.selected ? Style.accentText : Style.accent
        }
        Label {
            Layout.fillWidth: true
            text: row.title
            textFormat: Text.PlainText
            elide: Text.ElideRight
            color: row.selected ? Style.accentText : palette.windowText
        }
        Label {
            objectName: "badge"
            visible: row.badge > 0
            text: row.badge
            leftPadding: Style.spaceS
            rightPadding: Style.spaceS
            topPadding: Style.spaceXXS
            bottomPadding: Style.spaceXXS
            font.pixelSize: Typography.caption
            font.weight: Font.DemiBold
            color: row.selected ? Style.accentText : Style.secondary
            Accessible.name: qsTr("%n item(s)", "", row.badge)
            background: Rectangle {
                radius: height / 2
                color: row.selected ? Qt.rgba(1, 1, 1, 0.25) : Style.quietFill
            }
        }
    }
}
