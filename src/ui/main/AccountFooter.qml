import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.App
import Quorvane.Components

// Who is signed in, and whether the calendar is live.
Rectangle {
    id: root

    required property MainWindowModel frame

    implicitHeight: row.implicitHeight + 2 * Style.spaceM
    radius: Style.radiusL
    color: Style.raisedFill
    border.width: 1
    border.color: Style.raisedEdge

    Accessible.role: Accessible.StaticText
    Accessible.name: root.frame.accountName + ", " + root.frame.statusText

    RowLayout {
        id: row
        anchors.fill: parent
        anchors.margins: Style.spaceM
        spacing: Style.spaceM

        Rectangle {
            width: 26
            height: 26
            radius: width / 2
            Accessible.ignored: true
            gradient: Gradient {
                orientation: Gradient.Horizontal
                GradientStop { position: 0.0; color: Style.orange }
                GradientStop { position: 1.0; color: Style.pink }
            }
            Label {
                objectName: "initials"
                anchors.centerIn: parent
                text: root.frame.initials
                textFormat: Text.PlainText
                color: Style.accentText
                font.pixelSize: Typography.caption
                font.bold: true
            }
        }
        ColumnLayout {
            Layout.fillWidth: true
            spacing: Style.spaceXS
            Label {
                objectName: "accountName"
                Layout.fillWidth: true
                text: root.frame.accountName
                textFormat: Text.PlainText
                elide: Text.ElideRight
                font.pixelSize: Typography.caption
                font.weight: Font.DemiBold
            }
            RowLayout {
                spacing: Style.spaceXS
                Rectangle {
                    objectName: "statusDot"
                    width: 6
                    height: 6
                    radius: width / 2
                    color: root.frame.statusColor
                }
                Label {
                    objectName: "statusText"
                    Layout.fillWidth: true
                    text: root.frame.statusText
                    elide: Text.ElideRight
                    font.pixelSize: Typography.caption2
                    color: Style.secondary
                }
            }
        }
    }
}
