import QtQuick
import QtQuick.Controls
import Quorvane.Components

// A pair of joined − and + buttons. The pair takes the focus as one control, and Up and Down
// press its buttons; each press is one step, reported and not applied here.
FocusScope {
    id: stepper

    property string name
    property int value
    property bool canDown: true
    property bool canUp: true

    signal stepped(int direction)

    implicitWidth: pair.implicitWidth
    implicitHeight: pair.implicitHeight
    activeFocusOnTab: true

    Accessible.role: Accessible.SpinBox
    Accessible.name: name
    Accessible.description: String(value)
    Accessible.onIncreaseAction: if (canUp) stepped(1)
    Accessible.onDecreaseAction: if (canDown) stepped(-1)
    Keys.onUpPressed: if (canUp) stepped(1)
    Keys.onDownPressed: if (canDown) stepped(-1)

    Rectangle {
        anchors.fill: parent
        radius: Style.radiusM
        color: palette.base
        border.color: stepper.activeFocus ? palette.highlight : Style.separator(palette.window)
    }
    Row {
        id: pair
        padding: 1
        component Half: AbstractButton {
            id: half
            property string symbol
            implicitWidth: 26
            implicitHeight: 22
            focusPolicy: Qt.NoFocus
            contentItem: Item {
                Icon {
                    anchors.centerIn: parent
                    name: half.symbol
                    size: 12
                    color: half.enabled ? palette.buttonText : Style.secondary
                }
            }
            background: Rectangle {
                radius: Style.radiusS
                color: half.pressed ? Style.pressFill : half.hovered ? Style.hoverFill : "transparent"
            }
        }
        Half {
            objectName: "down"
            symbol: "minus"
            enabled: stepper.canDown
            Accessible.name: qsTr("Decrease")
            onClicked: stepper.stepped(-1)
        }
        Rectangle {
            width: 1
            height: 22
            color: Style.separator(palette.window)
        }
        Half {
            objectName: "up"
            symbol: "plus"
            enabled: stepper.canUp
            Accessible.name: qsTr("Increase")
            onClicked: stepper.stepped(1)
        }
    }
}
