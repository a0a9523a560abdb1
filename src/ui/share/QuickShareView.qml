import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.App
import Quorvane.Components

// Share Times: the host's best open times, up to three picks, and Ctrl+C for the message.
// Each time the window shows it starts afresh; its failures stay in it.
Item {
    id: root

    objectName: "quickShare"
    implicitWidth: 520
    implicitHeight: 480

    QuickShareModel {
        id: share
        objectName: "quickShareModel"
        app: App
    }

    // Each showing of the window is one visit.
    readonly property bool showing: Window.visibility !== Window.Hidden
    property bool visiting: false
    onShowingChanged: visit()
    Component.onCompleted: visit()
    function visit() {
        if (showing === visiting)
            return
        visiting = showing
        if (showing)
            share.open()
        else
            share.close()
    }

    function copyTimes() {
        if (share.copyTimes())
            Window.window.close()
    }

    Shortcut {
        sequences: [StandardKey.Copy]
        enabled: share.pickedCount > 0
        onActivated: root.copyTimes()
    }

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: Style.space3XL
        spacing: Style.spaceXL

        ShareHeader {
            Layout.fillWidth: true
            share: share
        }

        ShareTimes {
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.minimumHeight: 220
            share: share
        }

        SharePreview {
            Layout.fillWidth: true
            text: share.preview
        }

        RowLayout {
            Layout.fillWidth: true
            spacing: Style.spaceM
            Button {
                objectName: "suggestBest"
                text: qsTr("Suggest Best 3")
                enabled: share.hasSlots
                onClicked: share.suggestBest()
                Keys.onReturnPressed: share.suggestBest()
            }
            Item { Layout.fillWidth: true }
            Button {
                objectName: "copyLink"
                text: qsTr("Copy Link")
                enabled: share.link.length > 0
                onClicked: share.copyLink()
                Keys.onReturnPressed: share.copyLink()
            }
            ProminentButton {
                objectName: "copyTimes"
                opacity: enabled ? 1 : 0.45
                text: qsTr("Copy Times")
                enabled: share.pickedCount > 0
                onClicked: root.copyTimes()
                Keys.onReturnPressed: root.copyTimes()
                ToolTip.visible: hovered
                ToolTip.delay: 600
                ToolTip.text: qsTr("Copy Times (%1)").arg(share.copyKeyText)
            }
        }
    }

    // "Link copied" shows here, over this window, which stays open.
    BannerHost {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        z: 1
        shown: App.hasBanner && App.bannerKind === AppModel.Info
    }
}
