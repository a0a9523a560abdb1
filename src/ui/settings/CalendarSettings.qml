pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.App
import Quorvane.Components
import Quorvane.Onboarding

// The Google Calendar connection, the calendars checked for conflicts, and where new
// bookings go.
SettingsForm {
    id: root

    CalendarSettingsModel {
        id: calendar
        app: App
    }

    FormSection {
        title: qsTr("Google Calendar")

        RowLayout {
            Layout.fillWidth: true
            spacing: Style.spaceM
            Rectangle {
                Layout.preferredWidth: 8
                Layout.preferredHeight: 8
                radius: 4
                color: calendar.connected ? Style.green : Style.orange
                Accessible.ignored: true
            }
            Label {
                objectName: "calendarStatus"
                Layout.fillWidth: true
                text: calendar.statusText
                textFormat: Text.PlainText
                elide: Text.ElideRight
            }
            Button {
                objectName: "connectButton"
                text: calendar.connected ? qsTr("Reconnect") : qsTr("Connect")
                Keys.onReturnPressed: clicked()
                onClicked: calendar.connectCalendar()
            }
        }
        Note {
            objectName: "calendarError"
            text: calendar.error
            color: Style.red
        }
    }

    FormSection {
        title: qsTr("Check these calendars for conflicts")
        visible: calendar.showsCalendars

        Repeater {
            model: CalendarListModel {
                id: conflictList
                objectName: "conflictCalendars"
                app: App
            }
            WrappingSwitch {
                required property int index
                required property string key
                required property string label
                required property bool conflicts
                objectName: "conflict." + key
                Layout.fillWidth: true
                text: label
                checked: conflicts
                onToggled: conflictList.setChecked(index, checked)
            }
        }
    }

    FormSection {
        title: qsTr("New bookings")
        visible: calendar.showsCalendars

        RowLayout {
            Layout.fillWidth: true
            spacing: Style.spaceL
            Label {
                Layout.fillWidth: true
                text: qsTr("Add to")
            }
            ChoiceBox {
                objectName: "bookingCalendar"
                Layout.preferredWidth: 220
                model: CalendarListModel {
                    objectName: "bookingCalendars"
                    app: App
                    writableOnly: true
                }
                textRole: "label"
                valueRole: "key"
                currentIndex: calendar.bookingIndex
                displayText: currentIndex < 0 ? "" : currentText
                Accessible.name: qsTr("Add to")
                onActivated: index => calendar.chooseBooking(index)
            }
        }
        WrappingSwitch {
            objectName: "meetSwitch"
            Layout.fillWidth: true
            text: qsTr("Add Google Meet links (when the event type uses Meet)")
            checked: calendar.addMeet
            onToggled: calendar.addMeet = checked
        }
    }
}
