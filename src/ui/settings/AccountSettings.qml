import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.App
import Quorvane.Components
import Quorvane.Onboarding

// Who is signed in, signing out, and the server this copy talks to.
SettingsForm {
    id: root

    AccountSettingsModel {
        id: account
        app: App
    }

    FormSection {
        objectName: "signedInSection"
        title: qsTr("Signed in")
        visible: account.signedIn

        FactRow {
            objectName: "accountName"
            label: qsTr("Name")
            value: account.name
        }
        FactRow {
            objectName: "accountEmail"
            label: qsTr("Email")
            value: account.email
        }
        RowLayout {
            Layout.fillWidth: true
            spacing: Style.spaceL
            Label {
                Layout.fillWidth: true
                text: qsTr("Booking page")
            }
            Label {
                objectName: "bookingPageLink"
                Layout.maximumWidth: 300
                text: account.pageLink
                textFormat: Text.PlainText
                elide: Text.ElideMiddle
                color: Style.accent
                font.underline: linkArea.containsMouse || activeFocus
                activeFocusOnTab: true
                Keys.onReturnPressed: account.openPage()
                Keys.onSpacePressed: account.openPage()
                Accessible.role: Accessible.Link
                Accessible.name: qsTr("Booking page %1").arg(account.pageLink)
                MouseArea {
                    id: linkArea
                    anchors.fill: parent
                    hoverEnabled: true
                    cursorShape: Qt.PointingHandCursor
                    onClicked: account.openPage()
                }
            }
        }
        RowLayout {
            Layout.fillWidth: true
            Button {
                objectName: "dashboardButton"
                text: qsTr("Web Dashboard")
                Keys.onReturnPressed: clicked()
                onClicked: account.openDashboard()
            }
            Item { Layout.fillWidth: true }
            Button {
                objectName: "signOutButton"
                text: qsTr("Sign Out\u2026")
                palette.buttonText: Style.red
                Keys.onReturnPressed: clicked()
                onClicked: confirm.open()
            }
        }
    }

    FormSection {
        objectName: "signInSection"
        title: qsTr("Account")
        visible: !account.signedIn

        Loader {
            Layout.fillWidth: true
            // The panel holds a sign-in flow of its own: only while it is wanted.
            active: !account.signedIn
            sourceComponent: SignInPanel {}
        }
    }

    FormSection {
        title: qsTr("Server")

        RowLayout {
            Layout.fillWidth: true
            spacing: Style.spaceL
            Label {
                text: qsTr("Server URL")
            }
            TextField {
                objectName: "serverField"
                Layout.fillWidth: true
                text: App.serverURL
                selectByMouse: true
                inputMethodHints: Qt.ImhUrlCharactersOnly | Qt.ImhNoAutoUppercase
                Accessible.name: qsTr("Server URL")
                onTextEdited: App.serverURL = text
                onAccepted: account.serverEntered()
            }
        }
        Note {
            text: qsTr("Your token is stored in your system keyring. Saved data is cached for offline use.")
        }
    }

    ConfirmDialog {
        id: confirm
        objectName: "signOutConfirm"
        title: qsTr("Sign out of Quorvane on this computer?")
        message: qsTr("Your booking page keeps working. You can revoke this computer's token in the web dashboard.")
        actionText: qsTr("Sign Out")
        onConfirmed: account.signOut()
    }
}
