import QtQuick
import QtQuick.Controls
import Quorvane.App
import Quorvane.Components

// A booking's context menu. Cancelling from here asks nothing: the confirmation belongs to
// the detail pane.
Menu {
    id: root

    required property BookingListModel bookings
    property int row: -1
    property Item rowItem: null

    function show(row: int, item: Item) {
        root.row = row
        root.rowItem = item
        popup(item, item.width / 3, item.height / 2)
    }

    PlainMenuItem {
        objectName: "joinEntry"
        text: qsTr("Join Google Meet")
        visible: root.rowItem !== null && root.rowItem.canJoin
        onTriggered: root.bookings.join(root.row)
    }
    PlainMenuItem {
        objectName: "copyEmailEntry"
        text: qsTr("Copy Email")
        onTriggered: root.bookings.copyEmail(root.row)
    }
    PlainMenuItem {
        objectName: "emailEntry"
        text: root.rowItem !== null ? root.rowItem.emailLabel : ""
        onTriggered: root.bookings.email(root.row)
    }
    PlainMenuItem {
        objectName: "rescheduleEntry"
        text: qsTr("Copy Reschedule Message")
        visible: root.rowItem !== null && root.rowItem.canReschedule
        onTriggered: root.bookings.rescheduleMessage(root.row)
    }
    PlainMenuItem {
        objectName: "cancelEntry"
        text: qsTr("Cancel Booking…")
        visible: root.rowItem !== null && root.rowItem.canReschedule
        textColor: highlighted ? palette.highlightedText : Style.red
        onTriggered: root.bookings.cancel(root.row)
    }
    PlainMenuItem {
        objectName: "noShowEntry"
        text: root.rowItem !== null ? root.rowItem.noShowTitle : ""
        visible: text.length > 0
        onTriggered: root.bookings.toggleNoShow(root.row)
    }
}
