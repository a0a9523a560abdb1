import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.App
import Quorvane.Components

// The switches show what the system did: a refused permission or a login entry that couldn't
// be written flips its switch back.
OnboardingStep {
    id: root

    required property OnboardingModel guide

    Label {
        Layout.fillWidth: true
        text: qsTr("Stay in the loop")
        font.pixelSize: Typography.title
        font.bold: true
    }
    WrappingSwitch {
        objectName: "notifSwitch"
        Layout.fillWidth: true
        text: qsTr("Notify me about new bookings, cancellations and upcoming meetings")
        checked: root.guide.notif
        onToggled: root.guide.notif = checked
    }
    WrappingSwitch {
        objectName: "loginSwitch"
        Layout.fillWidth: true
        text: qsTr("Open Quorvane at login (lives in the tray)")
        checked: root.guide.login
        onToggled: root.guide.login = checked
    }
}
