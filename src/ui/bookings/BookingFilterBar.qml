pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.App
import Quorvane.Components

// Upcoming, past, cancelled or all, and one event type or all of them. Inactive types are
// offered too: old bookings may carry them.
Pane {
    id: root

    required property BookingListModel bookings

    padding: Style.spaceL
    background: null

    TypeLinksModel {
        id: types
        app: App
        includeInactive: true
    }

    contentItem: RowLayout {
        spacing: Style.spaceM

        SegmentedControl {
            objectName: "filterControl"
            Layout.fillWidth: true
            label: qsTr("Show")
            titles: root.bookings.filterTitles
            currentIndex: root.bookings.filter
            onActivated: index => root.bookings.filter = index
        }
        Button {
            id: typeButton
            objectName: "typeMenuButton"
            flat: true
            text: root.bookings.typeMenuTitle
            font.pixelSize: Typography.callout
            // A type's title comes from the server: plain text.
            contentItem: RowLayout {
                spacing: Style.spaceXS
                Icon {
                    name: "line.3.horizontal.decrease.circle"
                    size: 14
                    color: palette.buttonText
                }
                Label {
                    text: typeButton.text
                    textFormat: Text.PlainText
                    font: typeButton.font
                }
            }
            onClicked: typeMenu.popup(typeButton, 0, typeButton.height)
            Accessible.name: qsTr("Filter by event type")
            Accessible.description: text

            Menu {
                id: typeMenu
                objectName: "typeMenu"

                PlainMenuItem {
                    text: qsTr("All event types")
                    onTriggered: root.bookings.typeFilter = ""
                }
                MenuSeparator {}
                Instantiator {
                    model: types
                    delegate: PlainMenuItem {
                        required property string slug
                        required property string title
                        text: title
                        onTriggered: root.bookings.typeFilter = slug
                    }
                    onObjectAdded: (index, object) => typeMenu.insertItem(index + 2, object)
                    onObjectRemoved: (index, object) => typeMenu.removeItem(object)
                }
            }
        }
    }
}
