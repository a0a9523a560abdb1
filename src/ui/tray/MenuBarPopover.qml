pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.App
import Quorvane.Components
import Quorvane.Onboarding
import Quorvane.Today

// The tray's popover: the next meeting, the rest of today, one-click links, and the way to
// everything else. It closes as soon as it loses focus, like a menu.
Window {
    id: popover

    width: 340
    height: content.implicitHeight + 2 * content.anchors.margins
    flags: Qt.Tool | Qt.FramelessWindowHint | Qt.WindowStaysOnTopHint
    title: "Quorvane"
    color: palette.window

    onActiveChanged: {
        if (!active)
            hide()
    }

    // Every way to a window goes through here: the popover makes way for it.
    function open(window: int) {
        popover.hide()
        Shell.open(window)
    }

    MenuBarViewModel {
        id: bar
        app: App
    }
    TimelineModel {
        id: timeline
        app: App
    }

    Shortcut {
        sequence: "Escape"
        onActivated: popover.hide()
    }

    Rectangle {
        anchors.fill: parent
        color: "transparent"
        border.width: 1
        border.color: Style.windowEdge(palette.window)
    }

    ColumnLayout {
        id: content
        anchors.fill: parent
        anchors.margins: Style.spaceXXL
        spacing: Style.spaceXL

        PopoverHeader {
            Layout.fillWidth: true
            date: bar.dateText
        }

        SignInSlot {
            objectName: "signInSlot"
            Layout.fillWidth: true
            active: bar.showsSignIn
            visible: active
        }

        ColumnLayout {
            objectName: "signedInContent"
            Layout.fillWidth: true
            visible: !bar.showsSignIn
            spacing: Style.spaceXL

            // Failures only: a toast shows as the green line further down.
            BannerHost {
                objectName: "popoverBanner"
                Layout.fillWidth: true
                shown: bar.showsBanner
                padding: 0
                visible: implicitHeight > 0
            }

            NextMeetingCard {
                objectName: "popoverCard"
                Layout.fillWidth: true
                compact: true
            }

            SectionHeading { text: qsTr("Today") }
            TimelineList {
                objectName: "popoverTimeline"
                Layout.fillWidth: true
                Layout.topMargin: -Style.spaceS
                visible: timeline.count > 0
                timeline: timeline
            }
            Label {
                objectName: "noMeetingsToday"
                Layout.topMargin: -Style.spaceS
                visible: timeline.count === 0
                text: qsTr("No meetings today 🎉")
                font.pixelSize: Typography.callout
            }

            Divider { Layout.fillWidth: true }

            SectionHeading {
                objectName: "copyHeading"
                text: qsTr("Copy a link")
            }
            CopyLinkGrid {
                Layout.fillWidth: true
                Layout.topMargin: -Style.spaceS
            }

            Button {
                objectName: "shareTimes"
                Layout.fillWidth: true
                text: qsTr("Share times…")
                icon.source: Style.icon("paperplane.fill", palette.buttonText)
                icon.color: "transparent"
                onClicked: popover.open(AppWindow.Share)
            }

            Label {
                objectName: "toast"
                Layout.fillWidth: true
                visible: bar.showsToast
                text: App.bannerMessage
                textFormat: Text.PlainText
                wrapMode: Text.WordWrap
                font.pixelSize: Typography.caption
                color: Style.green
            }
        }

        Divider { Layout.fillWidth: true }

        PopoverFooter {
            Layout.fillWidth: true
            onOpenWindow: window => popover.open(window)
        }
    }
}
