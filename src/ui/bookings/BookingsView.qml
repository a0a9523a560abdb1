pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.App
import Quorvane.Components

// Every booking the app knows: the filters and the list by day at the left, the selected
// booking at the right. The window's toolbar shows a search field for `query` while this
// screen is up.
SplitView {
    id: root

    readonly property string searchPrompt: qsTr("Search bookings")
    property alias query: bookings.query

    orientation: Qt.Horizontal
    handle: Item {
        implicitWidth: 5
        Rectangle {
            anchors.horizontalCenter: parent.horizontalCenter
            width: 1
            height: parent.height
            color: Style.separator(palette.window)
        }
    }

    BookingListModel {
        id: bookings
        objectName: "bookingsModel"
        app: App
    }
    BookingDetailModel {
        id: detail
        app: App
    }

    ColumnLayout {
        SplitView.minimumWidth: 320
        SplitView.preferredWidth: 380
        spacing: 0

        BookingFilterBar {
            Layout.fillWidth: true
            bookings: bookings
        }
        SkeletonList {
            objectName: "bookingsSkeleton"
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.margins: Style.spaceL
            visible: !App.firstLoadDone
            rows: 5
        }
        EmptyPanel {
            objectName: "bookingsEmpty"
            Layout.fillWidth: true
            Layout.fillHeight: true
            visible: App.firstLoadDone && bookings.count === 0
            title: bookings.emptyTitle
            symbol: bookings.emptySymbol
            description: bookings.emptyDescription
        }
        BookingList {
            id: list
            objectName: "bookingList"
            Layout.fillWidth: true
            Layout.fillHeight: true
            visible: App.firstLoadDone && bookings.count > 0
            bookings: bookings
            focus: true
        }
    }

    Item {
        SplitView.minimumWidth: 340
        SplitView.fillWidth: true

        BookingDetail {
            objectName: "bookingDetail"
            anchors.fill: parent
            visible: detail.present
            detail: detail
        }
        EmptyPanel {
            objectName: "noSelection"
            anchors.fill: parent
            visible: !detail.present
            title: qsTr("Select a booking")
            symbol: "sidebar.right"
            description: qsTr("Details, notes and actions appear here.")
        }
    }
}
