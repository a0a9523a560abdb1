pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.App
import Quorvane.Components

// The questions every guest answers when booking, up to five, each with its remove button,
// and the field to add one.
FormSection {
    id: root

    required property EventTypeEditorModel editor

    title: qsTr("Questions for guests")

    Repeater {
        model: root.editor.questions

        RowLayout {
            id: question
            required property int index
            required property string modelData
            Layout.fillWidth: true
            spacing: Style.spaceM

            Icon {
                name: "questionmark.bubble"
                color: Style.secondary
                size: 14
            }
            Label {
                objectName: "questionText"
                Layout.fillWidth: true
                text: question.modelData
                textFormat: Text.PlainText
                wrapMode: Text.Wrap
            }
            SymbolButton {
                objectName: "removeQuestion"
                symbol: "minus.circle.fill"
                tint: Style.red
                flat: true
                onClicked: root.editor.removeQuestion(question.index)
                Keys.onReturnPressed: clicked()
                Accessible.name: qsTr("Remove question %1").arg(question.modelData)
            }
        }
    }
    RowLayout {
        Layout.fillWidth: true
        spacing: Style.spaceM
        TextField {
            id: field
            objectName: "questionField"
            Layout.fillWidth: true
            text: root.editor.newQuestion
            onTextEdited: root.editor.newQuestion = text
            placeholderText: qsTr("Add a required question…")
            Accessible.name: qsTr("Add a required question")
            onAccepted: root.editor.addQuestion()
        }
        Button {
            objectName: "addQuestion"
            text: qsTr("Add")
            Accessible.name: text
            enabled: root.editor.canAddQuestion
            onClicked: root.editor.addQuestion()
            Keys.onReturnPressed: clicked()
        }
    }
    Label {
        Layout.fillWidth: true
        text: qsTr("Up to 5. Answers appear in the booking and in the calendar event.")
        wrapMode: Text.WordWrap
        font.pixelSize: Typography.caption
        color: Style.secondary
    }
}
