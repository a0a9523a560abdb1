pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import Quorvane.App
import Quorvane.Components

// A chip for each colour of the palette; the type's colour has a ring, which springs over
// to the chip clicked.
Row {
    id: root

    required property EventTypeEditorModel editor

    spacing: Style.spaceS

    Repeater {
        model: root.editor.paletteColors

        AbstractButton {
            id: chip

            required property string modelData
            readonly property bool chosen: root.editor.colorHex === modelData

            objectName: "colorChip"
            width: 16
            height: 16
            focusPolicy: Qt.StrongFocus
            onClicked: root.editor.colorHex = modelData
            Keys.onReturnPressed: clicked()
            Accessible.role: Accessible.Button
            Accessible.name: qsTr("Color %1").arg(modelData)

            background: Rectangle {
                radius: width / 2
                color: chip.modelData
                border.width: chip.visualFocus ? 2 : 0
                border.color: palette.highlight

                Rectangle {
                    objectName: "chipRing"
                    anchors.fill: parent
                    radius: width / 2
                    color: "transparent"
                    border.width: 2
                    border.color: Style.withAlpha(palette.windowText, 0.8)
                    opacity: chip.chosen ? 1 : 0
                    Behavior on opacity {
                        NumberAnimation {
                            duration: Motion.springDuration(0.5, 0.85)
                            easing: Motion.spring(0.5, 0.85)
                        }
                    }
                }
            }
        }
    }
}
