pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.App
import Quorvane.Components

// One poll: its title and length, a bar per time offered, who voted, and its link.
Card {
    id: root

    required property int index
    required property string pollId
    required property string title
    required property string minutes
    required property string voters
    required property string deleteTitle
    required property PollListModel polls

    signal deleteRequested()

    spacing: Style.spaceL

    PollOptionsModel {
        id: options
        app: App
        pollId: root.pollId
    }

    RowLayout {
        Layout.fillWidth: true
        Label {
            Layout.fillWidth: true
            text: root.title
            textFormat: Text.PlainText
            elide: Text.ElideRight
            font.pixelSize: Typography.headline
            font.bold: true
        }
        Label {
            text: root.minutes
            font.pixelSize: Typography.caption
            color: Style.secondary
        }
    }

    Repeater {
        model: options
        delegate: PollOptionRow {
            Layout.fillWidth: true
        }
    }

    Label {
        objectName: "votersLine"
        Layout.fillWidth: true
        text: root.voters
        textFormat: Text.PlainText
        wrapMode: Text.WordWrap
        font.pixelSize: Typography.caption
        color: Style.secondary
    }

    RowLayout {
        Layout.fillWidth: true
        spacing: Style.spaceM
        Button {
            objectName: "copyPollLink"
            text: qsTr("Copy Link")
            icon.source: Style.icon("link", palette.buttonText)
            onClicked: root.polls.copyLink(root.index)
        }
        Button {
            objectName: "openPoll"
            text: qsTr("Open")
            icon.source: Style.icon("safari", palette.buttonText)
            onClicked: root.polls.open(root.index)
        }
        Item {
            Layout.fillWidth: true
        }
        SymbolButton {
            objectName: "deletePoll"
            symbol: "trash"
            tint: Style.red
            onClicked: root.deleteRequested()
            Accessible.name: qsTr("Delete poll")
            ToolTip.visible: hovered
            ToolTip.delay: 600
            ToolTip.text: Accessible.name
        }
    }
}
