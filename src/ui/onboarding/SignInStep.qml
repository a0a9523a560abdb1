import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.App
import Quorvane.Components

// Signing in is offered, never required: "Continue" works without it.
OnboardingStep {
    id: root

    Label {
        Layout.fillWidth: true
        text: qsTr("Sign in")
        font.pixelSize: Typography.title
        font.bold: true
    }
    SymbolLabel {
        objectName: "signedInLabel"
        Layout.fillWidth: true
        visible: Setup.signedInLabel.length > 0
        text: Setup.signedInLabel
        symbol: "checkmark.circle.fill"
        color: Style.green
    }
    SignInPanel {
        objectName: "signInPanel"
        Layout.fillWidth: true
        visible: Setup.signedInLabel.length === 0
    }
}
