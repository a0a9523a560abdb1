pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.App
import Quorvane.Components

// A new group poll: a title and a meeting type. It closes as soon as the poll is asked for;
// the model copies the link and says how it went.
Dialog {
    id: root

    parent: Overlay.overlay
    anchors.centerIn: parent
    width: 420
    modal: true
    focus: true
    padding: Style.space4XL
    closePolicy: Popup.CloseOnEscape

    Component.onCompleted: {
        draft.reset()
        open()
    }
    onClosed: App.showNewPoll = false

    NewPollModel {
        id: draft
        app: App
    }
    TypeLinksModel {
        id: types
        app: App
    }

    function create() {
        if (!draft.canCreate)
            return
        draft.create()
        close()
    }

    contentItem: ColumnLayout {
        spacing: Style.spaceXXL

        Label {
            text: qsTr("New group poll")
            font.pixelSize: Typography.title2
            font.bold: true
        }
        TextField {
            objectName: "pollTitle"
            Layout.fillWidth: true
            placeholderText: qsTr("Title")
            Accessible.name: qsTr("Title")
            text: draft.title
            focus: true
            onTextEdited: draft.title = text
            Keys.onReturnPressed: root.create()
            Keys.onEnterPressed: root.create()
        }
        RowLayout {
            Layout.fillWidth: true
            spacing: Style.spaceM
            Label {
                text: qsTr("Meeting type")
            }
            ChoiceBox {
                id: typeChoice
                objectName: "pollType"
                Layout.fillWidth: true
                model: types
                textRole: "choice"
                valueRole: "slug"
                currentIndex: types.count > 0 ? indexOfValue(draft.type) : -1
                onActivated: draft.type = currentValue
                Accessible.name: qsTr("Meeting type")
            }
        }
        Label {
            Layout.fillWidth: true
            text: qsTr("Quorvane picks your 4 best open times. The link is copied when it's ready.")
            wrapMode: Text.WordWrap
            font.pixelSize: Typography.caption
            color: Style.secondary
        }
        RowLayout {
            Layout.fillWidth: true
            spacing: Style.spaceM
            Item {
                Layout.fillWidth: true
            }
            Button {
                objectName: "cancelPoll"
                text: qsTr("Cancel")
                onClicked: root.close()
            }
            ProminentButton {
                objectName: "createPoll"
                text: qsTr("Create Poll")
                enabled: draft.canCreate
                onClicked: root.create()
            }
        }
    }
}
