import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.Components

OnboardingStep {
    Label {
        Layout.fillWidth: true
        text: qsTr("Welcome to Quorvane 2")
        font.pixelSize: Typography.largeTitle
        font.bold: true
    }
    Label {
        Layout.fillWidth: true
        text: qsTr("Share a link and let people book time that's really free. Your best hours come first, and every meeting lands on Google Calendar with a Meet link.")
        wrapMode: Text.WordWrap
        font.pixelSize: Typography.body
    }
}
