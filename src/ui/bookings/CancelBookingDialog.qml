import QtQuick
import QtQuick.Controls
import Quorvane.Components

// Asks before a booking is cancelled: the guest is told by e-mail, so the step can't be
// taken back. Escape or "Cancel" leaves the booking alone.
Dialog {
    id: root

    property string message

    signal confirmed()

    parent: Overlay.overlay
    anchors.centerIn: parent
    width: Math.min(420, parent ? parent.width - 2 * Style.space4XL : 420)
    modal: true
    focus: true

    // The title names the guest and the type, both from the server: plain text.
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
            objectName: "confirmCancel"
            text: qsTr("Cancel Booking")
            palette.buttonText: Style.red
            DialogButtonBox.buttonRole: DialogButtonBox.DestructiveRole
            onClicked: {
                root.close()
                root.confirmed()
            }
        }
        Button {
            objectName: "dismissCancel"
            text: qsTr("Cancel")
            DialogButtonBox.buttonRole: DialogButtonBox.RejectRole
        }
    }
}
