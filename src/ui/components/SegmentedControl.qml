pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls

// A row of joined buttons of which exactly one is chosen. The arrow keys move the choice
// while the control has the focus.
FocusScope {
    id: root

    property list<string> titles
    property int currentIndex: 0
    property string label // read by assistive technology only

    signal activated(int index)

    implicitWidth: row.implicitWidth
    implicitHeight: row.implicitHeight
    activeFocusOnTab: true

    Accessible.role: Accessible.PageTabList
    Accessible.name: root.label

    Keys.onLeftPressed: choose(Math.max(0, currentIndex - 1))
    Keys.onRightPressed: choose(Math.min(titles.length - 1, currentIndex + 1))

    function choose(index: int) {
        if (index !== currentIndex)
            activated(index)
    }

    Rectangle {
        anchors.fill: parent
        radius: Style.radiusM
        color: Style.withAlpha(palette.windowText, 0.06)
        border.color: root.activeFocus ? palette.highlight : "transparent"
    }

    Row {
        id: row
        anchors.fill: parent
        padding: Style.spaceXXS

        Repeater {
            model: root.titles
            delegate: AbstractButton {
                id: segment

                required property int index
                required property string modelData

                width: (root.width - 2 * row.padding) / root.titles.length
                implicitWidth: caption.implicitWidth + 2 * Style.spaceL
                implicitHeight: caption.implicitHeight + 2 * Style.spaceXS
                checked: index === root.currentIndex
                focusPolicy: Qt.NoFocus
                onClicked: root.choose(index)

                Accessible.role: Accessible.PageTab
                Accessible.name: modelData
                Accessible.checked: checked

                background: Rectangle {
                    radius: Style.radiusS
                    color: segment.checked ? palette.base : segment.hovered ? Style.hoverFill : "transparent"
                    border.color: segment.checked ? Style.hairline(palette.window) : "transparent"
                }
                contentItem: Label {
                    id: caption
                    text: segment.modelData
                    horizontalAlignment: Text.AlignHCenter
                    elide: Text.ElideRight // a segment is a share of the control, however long its title
                    verticalAlignment: Text.AlignVCenter
                    font.pixelSize: Typography.callout
                    font.weight: segment.checked ? Font.DemiBold : Font.Normal
                }
            }
        }
    }
}
