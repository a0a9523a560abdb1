pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import Quorvane.App
import Quorvane.Components

// The shown bookings by day. The selection is the model's, which the command palette sets
// too: the arrow keys and a click select, Return joins a booking with a link, and the menu
// key or a right click opens the booking's actions.
ListView {
    id: root

    required property BookingListModel bookings

    model: bookings
    clip: true
    currentIndex: rowOf(App.selectedBooking, bookings.count)
    keyNavigationEnabled: false // the keys below move the model's selection, not only the view
    highlightFollowsCurrentItem: false
    boundsBehavior: Flickable.StopAtBounds
    leftMargin: Style.spaceM
    rightMargin: Style.spaceM
    bottomMargin: Style.spaceM
    activeFocusOnTab: true
    ScrollBar.vertical: ScrollBar {}

    Accessible.role: Accessible.List
    Accessible.name: qsTr("Bookings")

    // The selected booking's row; `count` is there to look again when rows come or go.
    function rowOf(id: string, count: int): int {
        return bookings.indexOf(id)
    }
    function select(row: int) {
        if (row < 0 || row >= count)
            return
        App.selectedBooking = bookings.idAt(row)
        positionViewAtIndex(row, ListView.Contain)
    }
    function openActions(row: int, item: Item) {
        if (row >= 0 && item)
            actions.show(row, item)
    }

    Keys.onUpPressed: select(currentIndex < 0 ? count - 1 : currentIndex - 1)
    Keys.onDownPressed: select(currentIndex + 1)
    Keys.onPressed: event => {
        if (event.key === Qt.Key_Home) {
            select(0)
        } else if (event.key === Qt.Key_End) {
            select(count - 1)
        } else if ((event.key === Qt.Key_Return || event.key === Qt.Key_Enter) && currentItem) {
            if (currentItem.canJoin)
                bookings.join(currentIndex)
        } else if (event.key === Qt.Key_Menu && currentItem) {
            openActions(currentIndex, currentItem)
        } else {
            return
        }
        event.accepted = true
    }

    delegate: BookingRow {
        id: row
        width: ListView.view.width - root.leftMargin - root.rightMargin
        selected: bookingId === App.selectedBooking
        focused: selected && root.activeFocus
        onClicked: {
            root.forceActiveFocus()
            App.selectedBooking = bookingId
        }
        onMenuRequested: {
            root.forceActiveFocus()
            App.selectedBooking = bookingId
            root.openActions(index, row)
        }
    }

    BookingActions {
        id: actions
        objectName: "bookingActions"
        bookings: root.bookings
    }
}
