import QtQuick
import QtQuick.Controls

// Asks before a step that can't be taken back, such as cancelling a booking or deleting a
// poll. The action's button is red; Escape or "Cancel" leaves everything as it was.
Dialog {
    id: root

    property string message
    property string actionText

    signal confirmed()

    parent: Overlay.overlay
    anchors.centerIn: parent
    width: Math.min(420, parent ? parent.width - 2 * Style.space4XL : 420)
    modal: true
    focus: true

    // The title may name things from the server: plain text.
    header: Label {
        topPadding: root.padding
        leftPadding: root.padding
        rightPadding: root.padding
        text: root.title
        textFormat: Text.PlainText
        wrapMode: Text.WordWrap
        font.bold: true
    }

    Label {
        width: root.availableWidth
        text: root.message
        textFormat: Text.PlainText
        wrapMode: Text.WordWrap
    }

    footer: DialogButtonBox {
        Button {
            objectName: "confirmAction"
            text: root.actionText
            palette.buttonText: Style.red
            DialogButtonBox.buttonRole: DialogButtonBox.DestructiveRole
            Keys.onReturnPressed: clicked()
            Keys.onEnterPressed: clicked()
            onClicked: {
                root.close()
                root.confirmed()
            }
        }
        Button {
            objectName: "dismissAction"
            text: qsTr("Cancel")
            DialogButtonBox.buttonRole: DialogButtonBox.RejectRole
            Keys.onReturnPressed: root.reject()
            Keys.onEnterPressed: root.reject()
        }
    }
}
