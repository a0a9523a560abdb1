pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.App
import Quorvane.Components

// The booking rules under the grid. Each click is one edit of the settings; the model's save
// pause folds a series of clicks into one save.
ColumnLayout {
    id: form

    spacing: Style.spaceM
    Layout.maximumWidth: 640
    Layout.preferredHeight: 260

    RulesModel {
        id: rules
        objectName: "rulesModel"
        app: App
    }

    Label {
        text: qsTr("Booking rules")
        font.pixelSize: Typography.headline
        font.bold: true
        Accessible.role: Accessible.Heading
    }

    Card {
        Layout.fillWidth: true
        spacing: Style.spaceL

        RowLayout {
            Layout.fillWidth: true
            Label {
                Layout.fillWidth: true
                text: qsTr("Time zone")
            }
            TimeZonePicker {
                objectName: "timeZonePicker"
                zone: rules.timezone
                zoneName: rules.timezoneName
                onPicked: zone => rules.setTimezone(zone)
            }
        }
        Repeater {
            model: rules
            delegate: RowLayout {
                id: rulesRow
                required property int index
                required property string label
                required property string name
                required property int value
                required property bool canDown
                required property bool canUp
                Layout.fillWidth: true
                Label {
                    Layout.fillWidth: true
                    text: rulesRow.label
                }
                Stepper {
                    objectName: "stepper" + rulesRow.index
                    name: rulesRow.name
                    value: rulesRow.value
                    canDown: rulesRow.canDown
                    canUp: rulesRow.canUp
                    onStepped: direction => rules.step(rulesRow.index, direction)
                }
            }
        }
    }

    Item {
        Layout.fillHeight: true
    }
}
