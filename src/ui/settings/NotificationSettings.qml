import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.App
import Quorvane.Components
import Quorvane.Onboarding

// What Quorvane announces, and how long before a meeting it reminds.
SettingsForm {
    id: root

    readonly property NotificationAccess access: Setup.createNotificationAccess(root)

    NotificationSettingsModel {
        id: alerts
        app: App
    }

    // Each time the pane comes into view, the desktop is asked again.
    onVisibleChanged: if (visible) access.appear()
    Component.onCompleted: access.appear()

    FormSection {
        objectName: "notificationsOff"
        visible: !root.access.authorized

        RowLayout {
            Layout.fillWidth: true
            spacing: Style.spaceL
            Icon {
                name: "bell.slash"
                size: 18
                color: Style.orange
            }
            Label {
                Layout.fillWidth: true
                text: qsTr("Notifications are off for Quorvane.")
                wrapMode: Text.WordWrap
            }
            Button {
                objectName: "enableButton"
                text: qsTr("Enable\u2026")
                Keys.onReturnPressed: clicked()
                onClicked: root.access.enable()
            }
        }
        Note {
            objectName: "notificationsHelp"
            visible: root.access.refused
            text: qsTr("No notification service answered on this desktop. Turn notifications on in your desktop's settings, or, if it has none of its own, install and start a notification daemon such as dunst or mako. Then choose Enable\u2026 again.")
        }
    }

    FormSection {
        title: qsTr("Alerts")

        WrappingSwitch {
            objectName: "bookingsSwitch"
            Layout.fillWidth: true
            text: qsTr("New bookings and cancellations")
            checked: App.notifyBookings
            onToggled: App.notifyBookings = checked
        }
        WrappingSwitch {
            objectName: "remindersSwitch"
            Layout.fillWidth: true
            text: qsTr("Meeting reminders with a Join button")
            checked: alerts.notifyReminders
            onToggled: alerts.notifyReminders = checked
        }
        RowLayout {
            objectName: "remindMeRow"
            Layout.fillWidth: true
            visible: alerts.notifyReminders
            spacing: Style.spaceL
            Label {
                Layout.fillWidth: true
                text: qsTr("Remind me")
            }
            ChoiceBox {
                objectName: "remindMe"
                Layout.preferredWidth: 160
                model: alerts.reminderChoices
                currentIndex: alerts.reminderIndex
                Accessible.name: qsTr("Remind me")
                onActivated: index => alerts.chooseReminder(index)
            }
        }
    }

    Note {
        text: qsTr("Quorvane checks for changes every minute while it's running (it lives in the tray).")
    }
}
