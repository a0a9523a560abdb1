import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.App
import Quorvane.Components

// The meeting's length, the time kept free before and after it, and the bar that shows how
// they add up.
FormSection {
    id: root

    required property EventTypeEditorModel editor

    title: qsTr("Duration & buffers")

    RowLayout {
        Layout.fillWidth: true
        Label {
            Layout.fillWidth: true
            text: qsTr("Duration")
        }
        ChoiceBox {
            objectName: "durationChoice"
            model: root.editor.durationLabels
            currentIndex: root.editor.durationIndex
            onActivated: index => root.editor.durationIndex = index
            Accessible.name: qsTr("Duration")
        }
    }
    Repeater {
        model: [
            { name: "bufferBefore", title: qsTr("Buffer before: %1 min"), label: qsTr("Buffer before") },
            { name: "bufferAfter", title: qsTr("Buffer after: %1 min"), label: qsTr("Buffer after") }
        ]
        RowLayout {
            id: stepper
            required property var modelData
            Layout.fillWidth: true
            Label {
                Layout.fillWidth: true
                text: stepper.modelData.title.arg(root.editor[stepper.modelData.name])
            }
            SpinBox {
                objectName: stepper.modelData.name + "Stepper"
                from: 0
                to: 120
                stepSize: 5
                value: root.editor[stepper.modelData.name]
                onValueModified: root.editor[stepper.modelData.name] = value
                Accessible.name: stepper.modelData.label
            }
        }
    }
    BufferBar {
        Layout.fillWidth: true
        editor: root.editor
    }
}
