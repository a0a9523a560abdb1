pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.App
import Quorvane.Components

// Where the meeting takes place: the choice with each place's symbol, then the address or
// details where they apply, else a note. A detail typed once stays when the choice moves on.
FormSection {
    id: root

    required property EventTypeEditorModel editor

    title: qsTr("Location")

    RowLayout {
        Layout.fillWidth: true
        Label {
            Layout.fillWidth: true
            text: qsTr("Where")
        }
        ComboBox {
            id: where
            objectName: "locationChoice"
            implicitContentWidthPolicy: ComboBox.WidestText
            model: root.editor.locationLabels
            currentIndex: root.editor.location
            onActivated: index => root.editor.location = index
            Accessible.name: qsTr("Where")

            contentItem: Row {
                leftPadding: Style.spaceM
                spacing: Style.spaceS
                Icon {
                    anchors.verticalCenter: parent.verticalCenter
                    name: root.editor.locationSymbols[where.currentIndex] ?? ""
                    color: palette.buttonText
                    size: 14
                }
                Label {
                    anchors.verticalCenter: parent.verticalCenter
                    text: where.displayText
                }
            }
            delegate: ItemDelegate {
                required property int index
                required property string modelData
                width: ListView.view ? ListView.view.width : implicitWidth
                text: modelData
                highlighted: where.highlightedIndex === index
                icon.source: Style.icon(root.editor.locationSymbols[index], palette.text)
                icon.color: "transparent"
                icon.width: 14
                icon.height: 14
            }
        }
    }
    TextField {
        objectName: "locationDetail"
        Layout.fillWidth: true
        visible: root.editor.detailPrompt.length > 0
        text: root.editor.locationDetail
        onTextEdited: root.editor.locationDetail = text
        placeholderText: root.editor.detailPrompt
        Accessible.name: root.editor.detailPrompt
    }
    Label {
        objectName: "locationNote"
        Layout.fillWidth: true
        visible: root.editor.locationNote.length > 0
        text: root.editor.locationNote
        wrapMode: Text.WordWrap
        font.pixelSize: Typography.caption
        color: Style.secondary
    }
}
