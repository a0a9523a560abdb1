import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.Components

// One event type in the list: its location's symbol on a square of its colour, the title,
// length and slug, and "Off" when guests can't book it. Read as one element. Dragged
// vertically, it follows the pointer and says how far it went when let go.
ItemDelegate {
    id: row

    required property int index
    required property string typeId
    required property string title
    required property string subtitle
    required property color typeColor
    required property string symbol
    required property bool active
    required property string accessibleName

    property bool selected: false
    property bool focused: false
    readonly property bool dragging: drag.active

    signal menuRequested()
    signal dropped(real by)

    topPadding: Style.spaceXXS + Style.spaceXS
    bottomPadding: Style.spaceXXS + Style.spaceXS
    leftPadding: Style.spaceM
    rightPadding: Style.spaceM
    focusPolicy: Qt.NoFocus
    highlighted: selected

    Accessible.role: Accessible.ListItem
    Accessible.name: accessibleName
    Accessible.selected: selected

    transform: Translate {
        y: drag.active ? drag.translation.y : 0
    }

    background: Rectangle {
        radius: Style.radiusM
        color: row.selected ? Style.withAlpha(palette.highlight, row.focused ? 0.22 : 0.12)
                            : row.hovered || row.dragging ? Style.hoverFill : "transparent"
    }

    TapHandler {
        acceptedButtons: Qt.RightButton
        onTapped: row.menuRequested()
    }
    DragHandler {
        id: drag
        target: null
        xAxis.enabled: false
        onActiveChanged: {
            if (!active)
                row.dropped(translation.y)
        }
    }

    contentItem: RowLayout {
        spacing: Style.spaceL

        Rectangle {
            objectName: "typeSquare"
            Layout.preferredWidth: 28
            Layout.preferredHeight: 28
            radius: Style.radiusM
            gradient: Gradient {
                GradientStop { position: 0; color: Qt.lighter(row.typeColor, 1.2) }
                GradientStop { position: 1; color: row.typeColor }
            }
            Icon {
                anchors.centerIn: parent
                name: row.symbol
                color: Style.accentText
                size: 13
            }
        }
        ColumnLayout {
            Layout.fillWidth: true
            spacing: 1
            Label {
                Layout.fillWidth: true
                text: row.title
                textFormat: Text.PlainText
                elide: Text.ElideRight
                font.pixelSize: Typography.body
                font.weight: Font.Medium
                Accessible.ignored: true
            }
            Label {
                Layout.fillWidth: true
                text: row.subtitle
                textFormat: Text.PlainText
                elide: Text.ElideRight
                font.pixelSize: Typography.caption
                color: Style.secondary
                Accessible.ignored: true
            }
        }
        Pill {
            objectName: "offPill"
            visible: !row.active
            text: qsTr("Off")
            Accessible.ignored: true
        }
    }
}
