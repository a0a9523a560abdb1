import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.App
import Quorvane.Components

// The slug after the host's handle, and the whole link to copy or open.
FormSection {
    id: root

    required property EventTypeEditorModel editor

    title: qsTr("Link")

    RowLayout {
        Layout.fillWidth: true
        spacing: Style.spaceXS
        Label {
            text: qsTr("URL slug")
        }
        Item {
            Layout.fillWidth: true
        }
        Label {
            text: root.editor.handlePrefix
            textFormat: Text.PlainText
            color: Style.secondary
        }
        TextField {
            objectName: "slugField"
            Layout.preferredWidth: 160
            text: root.editor.slug
            onTextEdited: root.editor.slug = text
            placeholderText: qsTr("slug")
            Accessible.name: qsTr("URL slug")
        }
    }
    RowLayout {
        Layout.fillWidth: true
        spacing: Style.spaceM
        SelectableText {
            objectName: "fullLink"
            Layout.fillWidth: true
            text: root.editor.link
            wrapMode: TextEdit.WrapAnywhere
            font.family: "monospace"
            font.pixelSize: Typography.callout
            color: Style.secondary
            Accessible.name: qsTr("Link")
        }
        Button {
            objectName: "copyTypeLink"
            text: qsTr("Copy")
            Accessible.name: text
            icon.source: Style.icon("doc.on.doc", palette.buttonText)
            onClicked: root.editor.copyLink()
            Keys.onReturnPressed: clicked()
        }
        Button {
            objectName: "openTypeLink"
            text: qsTr("Open")
            Accessible.name: text
            icon.source: Style.icon("safari", palette.buttonText)
            onClicked: root.editor.open()
            Keys.onReturnPressed: clicked()
        }
    }
}
