import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.App
import Quorvane.Components

// What the application is, its version, its links and who made it.
Item {
    id: root

    readonly property AboutModel about: Setup.about

    implicitWidth: 360 + 2 * Style.space4XL
    implicitHeight: column.implicitHeight + 2 * Style.space4XL

    ColumnLayout {
        id: column
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.top: parent.top
        anchors.topMargin: Style.space4XL
        width: 360
        spacing: Style.spaceL

        AppMark {
            Layout.alignment: Qt.AlignHCenter
            size: 104
        }
        Label {
            Layout.alignment: Qt.AlignHCenter
            text: "Quorvane"
            font.pixelSize: Typography.title
            font.bold: true
        }
        Label {
            objectName: "versionLine"
            Layout.alignment: Qt.AlignHCenter
            text: root.about.versionLine
            color: Style.secondary
        }
        Label {
            Layout.alignment: Qt.AlignHCenter
            text: qsTr("Smart scheduling links for your Google Calendar.")
            font.pixelSize: Typography.callout
        }
        LinkRow {
            objectName: "productLinks"
            Layout.alignment: Qt.AlignHCenter
            links: root.about.links
            onActivated: url => root.about.open(url)
        }
        MenuSeparator {
            Layout.fillWidth: true
            Layout.topMargin: Style.spaceXS
            Layout.bottomMargin: Style.spaceXS
            padding: 0
        }
        AuthorCard {
            Layout.fillWidth: true
            about: root.about
        }
        Label {
            objectName: "legalLine"
            Layout.fillWidth: true
            visible: text.length > 0
            text: root.about.legal
            textFormat: Text.PlainText
            wrapMode: Text.WordWrap
            horizontalAlignment: Text.AlignHCenter
            font.pixelSize: Typography.caption
            color: Style.secondary
        }
    }
}
