pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.App
import Quorvane.Components

// The host's group polls: a card each with its votes, and the way to a new one. Deleting
// always asks first.
Item {
    id: root

    PollListModel {
        id: pollList
        objectName: "pollsModel"
        app: App
    }

    function askToDelete(row: int, title: string) {
        deleteDialog.row = row
        deleteDialog.title = title
        deleteDialog.open()
    }

    Shortcut {
        sequences: [StandardKey.New]
        onActivated: App.showNewPoll = true
    }

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: Style.space4XL
        spacing: Style.spaceXXL

        RowLayout {
            Layout.fillWidth: true
            spacing: Style.spaceL
            Label {
                Layout.fillWidth: true
                text: qsTr("Group polls offer your best few times. Guests vote, and you pick the winner.")
                wrapMode: Text.WordWrap
                color: Style.secondary
            }
            ProminentButton {
                objectName: "newPollButton"
                text: qsTr("New Poll")
                symbol: "plus"
                onClicked: App.showNewPoll = true
                ToolTip.visible: hovered
                ToolTip.delay: 600
                ToolTip.text: qsTr("New poll (Ctrl+N)")
            }
        }

        SkeletonList {
            objectName: "pollsSkeleton"
            Layout.fillWidth: true
            Layout.fillHeight: true
            visible: !App.firstLoadDone
            rows: 3
        }

        EmptyPanel {
            objectName: "pollsEmpty"
            Layout.fillWidth: true
            Layout.fillHeight: true
            visible: App.firstLoadDone && pollList.count === 0
            title: qsTr("No polls yet")
            symbol: "chart.bar.doc.horizontal"
            description: qsTr("Create one to find a time that works for a whole group.")
            Button {
                objectName: "createPollButton"
                text: qsTr("Create a Poll")
                onClicked: App.showNewPoll = true
            }
        }

        ListView {
            id: cards
            objectName: "pollCards"
            Layout.fillWidth: true
            Layout.fillHeight: true
            visible: App.firstLoadDone && pollList.count > 0
            clip: true
            spacing: Style.spaceXXL
            boundsBehavior: Flickable.StopAtBounds
            model: pollList
            ScrollBar.vertical: ScrollBar {}
            delegate: PollCard {
                width: ListView.view.width
                polls: pollList
                onDeleteRequested: root.askToDelete(index, deleteTitle)
            }
        }
    }

    ConfirmDialog {
        id: deleteDialog
        objectName: "deleteDialog"

        property int row: -1

        actionText: qsTr("Delete Poll")
        message: qsTr("The poll link stops working.")
        onConfirmed: pollList.deletePoll(row)
    }
}
