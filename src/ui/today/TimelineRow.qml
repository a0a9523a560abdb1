import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.Components

// One booking of the day: its time, a marker on the day's line, who and what, and a way to
// join while it isn't over.
Item {
    id: row

    required property int index
    required property string time
    required property string name
    required property string detail
    required property color typeColor
    required property bool past
    required property bool live
    required property bool showsJoin
    required property string joinName

    signal join(int row)

    implicitHeight: Math.max(content.implicitHeight, 36)
    opacity: past ? 0.5 : 1

    Accessible.role: Accessible.ListItem
    Accessible.name: row.time + ", " + row.name + ", " + row.detail

    RowLayout {
        id: content
        anchors.fill: parent
        spacing: Style.spaceL

        Label {
            Layout.preferredWidth: 70
            Layout.alignment: Qt.AlignTop
            text: row.time
            textFormat: Text.PlainText
            font.pixelSize: Typography.callout
            color: Style.secondary
            Accessible.ignored: true
        }
        Item {
            Layout.preferredWidth: 17
            Layout.fillHeight: true
            Rectangle {
                anchors.horizontalCenter: parent.horizontalCenter
                width: 1
                height: parent.height
                color: Style.rule(palette.windowText)
            }
            Rectangle {
                objectName: "marker"
                anchors.horizontalCenter: parent.horizontalCenter
                y: 4
                width: 9
                height: 9
                radius: width / 2
                color: row.live ? Style.green : row.typeColor
            }
        }
        ColumnLayout {
            Layout.fillWidth: true
            Layout.alignment: Qt.AlignTop
            spacing: Style.spaceXXS
            Label {
                Layout.fillWidth: true
                text: row.name
                textFormat: Text.PlainText
                elide: Text.ElideRight
                font.pixelSize: Typography.callout
                font.weight: Font.DemiBold
                Accessible.ignored: true
            }
            Label {
                Layout.fillWidth: true
                text: row.detail
                textFormat: Text.PlainText
                elide: Text.ElideRight
                font.pixelSize: Typography.caption
                color: Style.secondary
                Accessible.ignored: true
            }
        }
        Button {
            objectName: "rowJoin"
            Layout.alignment: Qt.AlignTop
            visible: row.showsJoin
            text: qsTr("Join")
            font.pixelSize: Typography.caption
            topPadding: Style.spaceXXS
            bottomPadding: Style.spaceXXS
            leftPadding: Style.spaceL
            rightPadding: Style.spaceL
            implicitHeight: 22
            implicitWidth: implicitContentWidth + leftPadding + rightPadding
            onClicked: row.join(row.index)
            Accessible.name: row.joinName
        }
    }
}
