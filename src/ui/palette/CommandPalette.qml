pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.App
import Quorvane.Components

// The keyboard road through the main window: a query over every section, command, type link
// and recent booking; Return runs the highlighted row. Made afresh at each opening.
Item {
    id: root

    objectName: "commandPalette"
    Accessible.role: Accessible.Dialog
    Accessible.name: qsTr("Command palette")

    CommandPaletteModel {
        id: rows
        objectName: "paletteModel"
        app: App
        commands: Commands
    }

    Component.onCompleted: {
        rows.open()
        field.forceActiveFocus()
    }

    Rectangle {
        objectName: "paletteBackdrop"
        anchors.fill: parent
        color: Style.scrim
        Accessible.ignored: true
        MouseArea {
            anchors.fill: parent
            onClicked: rows.close()
        }
    }

    // A soft shadow below the panel, in a few widening steps.
    Repeater {
        model: 4
        delegate: Rectangle {
            required property int index
            x: panel.x - (index + 1) * 3
            y: panel.y + 12 - (index + 1) * 2
            width: panel.width + (index + 1) * 6
            height: panel.height + (index + 1) * 6
            radius: panel.radius + (index + 1) * 3
            color: Style.shadowStep
        }
    }

    Rectangle {
        id: panel
        objectName: "palettePanel"
        width: Math.min(560, root.width - 2 * Style.space4XL)
        x: (root.width - width) / 2
        y: 80
        height: column.implicitHeight
        radius: Style.radiusXXL
        color: palette.window
        border.color: Style.separator(palette.window)

        // Clicks on the panel stay with it.
        MouseArea { anchors.fill: parent }

        ColumnLayout {
            id: column
            width: parent.width
            spacing: 0

            RowLayout {
                Layout.fillWidth: true
                Layout.margins: Style.spaceXXL
                spacing: Style.spaceL
                Icon {
                    name: "magnifyingglass"
                    size: 18
                    color: Style.secondary
                    Accessible.ignored: true
                }
                TextField {
                    id: field
                    objectName: "paletteQuery"
                    Layout.fillWidth: true
                    placeholderText: qsTr("Type a command or search bookings…")
                    font.pixelSize: Typography.title3
                    background: null
                    Accessible.name: qsTr("Command or booking")
                    onTextChanged: rows.query = text
                    Keys.onReturnPressed: rows.run(rows.index)
                    Keys.onEnterPressed: rows.run(rows.index)
                    Keys.onDownPressed: rows.down()
                    Keys.onUpPressed: rows.up()
                    Keys.onEscapePressed: rows.close()
                }
            }

            Rectangle {
                Layout.fillWidth: true
                implicitHeight: 1
                color: Style.separator(palette.window)
            }

            Label {
                objectName: "paletteNoMatches"
                Layout.fillWidth: true
                Layout.margins: Style.spaceXL
                visible: rows.count === 0
                text: qsTr("No matches")
                color: Style.secondary
            }

            ListView {
                id: list
                objectName: "paletteList"
                Layout.fillWidth: true
                Layout.preferredHeight: Math.min(contentHeight + 2 * Style.spaceS, 340)
                Layout.margins: Style.spaceS
                visible: rows.count > 0
                clip: true
                spacing: Style.spaceXXS
                model: rows
                currentIndex: rows.index
                highlightFollowsCurrentItem: false
                boundsBehavior: Flickable.StopAtBounds
                ScrollBar.vertical: ScrollBar { policy: list.contentHeight > list.height ? ScrollBar.AlwaysOn : ScrollBar.AsNeeded }
                onCurrentIndexChanged: positionViewAtIndex(currentIndex, ListView.Contain)
                delegate: PaletteRow {
                    width: list.width - (list.ScrollBar.vertical.visible ? list.ScrollBar.vertical.width : 0)
                    highlighted: index === rows.index
                    onClicked: rows.run(index)
                }
            }
        }
    }
}
