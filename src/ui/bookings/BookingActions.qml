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

    // Hidden entries take no room.
    component Entry: MenuItem {
        height: visible ? implicitHeight : 0
    }

    Entry {
        objectName: "joinEntry"
        text: qsTr("Join Google Meet")
        visible: root.rowItem !== null && root.rowItem.canJoin
        onTriggered: root.bookings.join(root.row)
    }
    Entry {
        objectName: "copyEmailEntry"
        text: qsTr("Copy Email")
        onTriggered: root.bookings.copyEmail(root.row)
    }
    Entry {
        objectName: "emailEntry"
        text: root.rowItem !== null ? root.rowItem.emailLabel : ""
        onTriggered: root.bookings.email(root.row)
    }
    Entry {
        objectName: "rescheduleEntry"
        text: qsTr("Copy Reschedule Message")
        visible: root.rowItem !== null && root.rowItem.canReschedule
        onTriggered: root.bookings.rescheduleMessage(root.row)
    }
    Entry {
        objectName: "cancelEntry"
        text: qsTr("Cancel Booking…")
        visible: root.rowItem !== null && root.rowItem.canReschedule
        palette.windowText: Style.red
        palette.text: Style.red
        onTriggered: root.bookings.cancel(root.row)
    }
    Entry {
        objectName: "noShowEntry"
        text: root.rowItem !== null ? root.rowItem.noShowTitle : ""
        visible: text.length > 0
        onTriggered: root.bookings.toggleNoShow(root.row)
    }
}
