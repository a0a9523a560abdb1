import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.App
import Quorvane.Components
import Quorvane.Onboarding

// This version, and the checks for a newer one.
SettingsForm {
    id: root

    UpdateSettingsModel {
        id: updates
        app: App
        lastCheck: Updates.lastCheck
    }

    FormSection {
        FactRow {
            objectName: "version"
            label: qsTr("Version")
            value: Updates.versionText
        }
        WrappingSwitch {
            objectName: "automaticSwitch"
            Layout.fillWidth: true
            text: qsTr("Automatically check for updates")
            checked: Updates.automatic
            onToggled: Updates.automatic = checked
        }
        RowLayout {
            Layout.fillWidth: true
            spacing: Style.spaceL
            Button {
                objectName: "checkButton"
                text: qsTr("Check for Updates\u2026")
                enabled: Updates.canCheck
                Keys.onReturnPressed: clicked()
                onClicked: Updates.check()
            }
            Label {
                objectName: "lastChecked"
                Layout.fillWidth: true
                text: updates.lastChecked
                visible: text.length > 0
                elide: Text.ElideRight
                font.pixelSize: Typography.caption
                color: Style.secondary
            }
        }
        RowLayout {
            Layout.fillWidth: true
            visible: Updates.status.length > 0
            spacing: Style.spaceL
            Label {
                objectName: "updateStatus"
                Layout.fillWidth: true
                text: Updates.status
                textFormat: Text.PlainText
                wrapMode: Text.WordWrap
                color: Updates.failed ? Style.red : palette.windowText
            }
            Button {
                objectName: "notesButton"
                visible: Updates.availableVersion.length > 0
                text: qsTr("Release Notes")
                Keys.onReturnPressed: clicked()
                onClicked: Updates.openNotes()
            }
        }
    }

    Note {
        text: qsTr("Updates are signed with Quorvane's EdDSA key.")
    }
}
