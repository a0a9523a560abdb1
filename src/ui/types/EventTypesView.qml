import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.App
import Quorvane.Components

// The kinds of meeting the booking page offers: the list at the left with the buttons to add
// and delete, the selected type's editor at the right. Every change is saved after a pause;
// the spinner shows while it goes out.
SplitView {
    id: root

    // The editor is made anew for each type: it edits a copy taken when it is made.
    readonly property string editorId: types.currentRow >= 0 ? types.selection : ""

    orientation: Qt.Horizontal
    handle: Item {
        implicitWidth: 5
        Rectangle {
            anchors.horizontalCenter: parent.horizontalCenter
            width: 1
            height: parent.height
            color: Style.separator(palette.window)
        }
    }

    EventTypeListModel {
        id: types
        objectName: "typesModel"
        app: App
    }

    Shortcut {
        id: newShortcut
        sequence: StandardKey.New
        onActivated: types.add()
    }

    Component.onCompleted: types.selectFirstIfNone()
    onEditorIdChanged: {
        editor.active = false
        editor.active = editorId.length > 0
    }

    ColumnLayout {
        SplitView.minimumWidth: 240
        SplitView.preferredWidth: 270
        SplitView.maximumWidth: 340
        spacing: 0

        SkeletonList {
            objectName: "typesSkeleton"
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.margins: Style.spaceL
            visible: !App.firstLoadDone
            rows: 3
        }
        EventTypeList {
            id: list
            objectName: "typeList"
            Layout.fillWidth: true
            Layout.fillHeight: true
            visible: App.firstLoadDone
            types: types
            focus: true
        }
        Rectangle {
            Layout.fillWidth: true
            implicitHeight: 1
            color: Style.separator(palette.window)
        }
        RowLayout {
            Layout.fillWidth: true
            Layout.margins: Style.spaceM
            spacing: Style.spaceXS

            SymbolButton {
                objectName: "addType"
                symbol: "plus"
                flat: true
                onClicked: types.add()
                Keys.onReturnPressed: clicked()
                Accessible.name: qsTr("New event type")
                ToolTip.visible: hovered
                ToolTip.delay: 600
                ToolTip.text: qsTr("New event type (%1)").arg(newShortcut.nativeText)
            }
            SymbolButton {
                objectName: "deleteType"
                symbol: "minus"
                flat: true
                enabled: types.canDelete
                onClicked: types.remove(types.currentRow)
                Keys.onReturnPressed: clicked()
                Accessible.name: qsTr("Delete event type")
                ToolTip.visible: hovered
                ToolTip.delay: 600
                ToolTip.text: Accessible.name
            }
            Item {
                Layout.fillWidth: true
            }
            BusyIndicator {
                objectName: "savingSpinner"
                implicitWidth: 18
                implicitHeight: 18
                padding: 0
                visible: App.saving
                running: App.saving
                Accessible.name: qsTr("Saving")
            }
        }
    }

    Item {
        SplitView.minimumWidth: 420
        SplitView.fillWidth: true

        Loader {
            id: editor
            objectName: "editorLoader"
            anchors.fill: parent
            active: root.editorId.length > 0
            sourceComponent: EventTypeEditor {
                typeId: root.editorId
            }
        }
        EmptyPanel {
            objectName: "noTypeSelected"
            anchors.fill: parent
            visible: root.editorId.length === 0
            title: qsTr("No event type selected")
            symbol: "square.stack.3d.up"
            description: qsTr("Pick one on the left, or press %1 to create one.").arg(newShortcut.nativeText)
        }
    }
}
