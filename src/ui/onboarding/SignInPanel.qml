pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.App
import Quorvane.Components

// The one control that signs the user in. It holds its own sign-in flow, which ends with the
// panel; a panel that is merely hidden keeps its flow running.
ColumnLayout {
    id: root

    readonly property DeviceSignIn auth: Setup.createSignIn(root)
    readonly property int phase: auth.phase

    spacing: Style.spaceL

    // Signed in: the window the user signed in from comes to the front, over the browser.
    Connections {
        target: root.auth
        function onActivateRequested() {
            const window = root.Window.window
            if (window && window.visible) {
                window.raise()
                window.requestActivate()
            }
        }
    }

    // Idle, or asking the server for codes.
    ColumnLayout {
        objectName: "idlePart"
        Layout.fillWidth: true
        visible: root.phase === SignInPhase.Idle || root.phase === SignInPhase.Starting
        spacing: Style.spaceL

        Button {
            objectName: "signInButton"
            Layout.fillWidth: true
            Layout.preferredHeight: 38
            text: qsTr("Sign in with your Quorvane account")
            icon.source: Style.icon("person.badge.key", Style.accentText)
            icon.color: "transparent" // the provider has drawn the colour already
            // The one prominent control on the panel: filled in the accent colour.
            palette.button: Style.accent
            palette.buttonText: Style.accentText
            highlighted: true
            enabled: root.phase !== SignInPhase.Starting
            onClicked: Setup.begin(root.auth)
        }
        Label {
            Layout.fillWidth: true
            text: qsTr("Opens your browser. Sign in with Google and approve this computer. The token is stored in your system keyring.")
            wrapMode: Text.WordWrap
            font.pixelSize: Typography.caption
            color: Style.secondary
        }
    }

    // The code to confirm in the browser.
    ColumnLayout {
        objectName: "waitingPart"
        Layout.fillWidth: true
        visible: root.phase === SignInPhase.Waiting
        spacing: Style.spaceL

        Label {
            text: qsTr("Confirm this code in your browser:")
            font.pixelSize: Typography.callout
        }
        TextEdit {
            objectName: "code"
            text: root.auth.code
            textFormat: TextEdit.PlainText
            readOnly: true
            selectByMouse: true
            color: root.palette.text
            selectionColor: root.palette.highlight
            selectedTextColor: root.palette.highlightedText
            font.family: "monospace"
            font.bold: true
            font.pixelSize: 30
            Accessible.role: Accessible.StaticText
            Accessible.name: Setup.spokenCode(root.auth.code)
        }
        RowLayout {
            spacing: Style.spaceM
            Button {
                objectName: "openAgainButton"
                leftPadding: Style.spaceXL
                rightPadding: Style.spaceXL
                text: qsTr("Open Browser Again")
                onClicked: Setup.openAgain(root.auth)
            }
            Button {
                objectName: "cancelButton"
                leftPadding: Style.spaceXL
                rightPadding: Style.spaceXL
                text: qsTr("Cancel")
                onClicked: root.auth.cancel()
            }
            BusyIndicator {
                Layout.preferredWidth: 22
                Layout.preferredHeight: 22
                running: root.phase === SignInPhase.Waiting
            }
        }
    }

    SymbolLabel {
        objectName: "donePart"
        visible: root.phase === SignInPhase.Done
        text: qsTr("Signed in")
        symbol: "checkmark.circle.fill"
        color: Style.green
    }

    // The flow ended without a token; its message is shown as it came.
    ColumnLayout {
        objectName: "failedPart"
        Layout.fillWidth: true
        visible: root.phase === SignInPhase.Failed
        spacing: Style.spaceL

        SymbolLabel {
            objectName: "failureMessage"
            Layout.fillWidth: true
            text: root.auth.message
            symbol: "exclamationmark.triangle.fill"
            color: Style.orange
        }
        Button {
            objectName: "tryAgainButton"
            text: qsTr("Try Again")
            onClicked: Setup.begin(root.auth)
        }
    }
}
