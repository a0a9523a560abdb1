import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.App
import Quorvane.Components
import Quorvane.Onboarding

// In place of every screen while nobody is signed in and nothing is cached.
Item {
    id: root

    objectName: "signInHero"

    ColumnLayout {
        anchors.centerIn: parent
        width: Math.min(root.width - 80, 460)
        spacing: Style.space3XL

        AppMark {
            Layout.alignment: Qt.AlignHCenter
            size: 96
        }
        Label {
            objectName: "heroTitle"
            Layout.alignment: Qt.AlignHCenter
            text: qsTr("Sign in to Quorvane")
            font.pixelSize: Typography.largeTitle
            font.bold: true
        }
        Label {
            Layout.alignment: Qt.AlignHCenter
            Layout.maximumWidth: 380
            Layout.preferredWidth: 380
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.WordWrap
            color: Style.secondary
            text: qsTr("Connect this computer to your Quorvane account to see bookings, edit availability and share times.")
        }
        SignInSlot {
            id: signInPanelSlot
            objectName: "signInPanelSlot"
            Layout.alignment: Qt.AlignHCenter
            Layout.maximumWidth: 380
            Layout.preferredWidth: 380
            active: root.visible
        }
    }
}
