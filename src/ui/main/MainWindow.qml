import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.App
import Quorvane.Components

// The frame around all screens: the sidebar at the left; at the right the banner above the
// current section's screen, or the sign-in hero while nobody is signed in.
ApplicationWindow {
    id: window

    property bool sidebarVisible: true

    title: frameModel.title
    width: 1180
    height: 760
    minimumWidth: 940
    minimumHeight: 620

    MainWindowModel {
        id: frameModel
        app: App
    }

    header: MainToolBar {
        id: toolBar
        subtitle: frameModel.subtitle
        sidebarVisible: window.sidebarVisible
        searchScreen: content.screenItem && content.screenItem.searchPrompt !== undefined ? content.screenItem : null
        onToggleSidebar: window.sidebarVisible = !window.sidebarVisible
    }
    Shortcut {
        sequences: [StandardKey.Find]
        enabled: toolBar.searchScreen !== null
        onActivated: toolBar.focusSearch()
    }

    SplitView {
        id: split
        anchors.fill: parent
        // Side by side: a split view's own orientation (FocusPolicy says why the first frame names
        // nothing of the Qt namespace).

        // A hairline between the columns, with a few pixels either side to grab.
        handle: Item {
            implicitWidth: 5
            Rectangle {
                anchors.horizontalCenter: parent.horizontalCenter
                width: 1
                height: parent.height
                color: Style.separator(palette.window)
            }
        }

        Sidebar {
            objectName: "sidebar"
            visible: window.sidebarVisible
            frame: frameModel
            SplitView.minimumWidth: 190
            SplitView.preferredWidth: 210
            SplitView.maximumWidth: 260
        }

        Rectangle {
            SplitView.fillWidth: true
            color: palette.base

            ColumnLayout {
                anchors.fill: parent
                spacing: 0

                BannerHost {
                    Layout.fillWidth: true
                }
                Item {
                    Layout.fillWidth: true
                    Layout.fillHeight: true

                    // Made only while it is shown: a returning user never sees it, and the
                    // start doesn't compile it.
                    Loader {
                        anchors.fill: parent
                        active: frameModel.showsSignInHero
                        sourceComponent: active ? Shell.signInHero(window) : null
                    }
                    SectionContent {
                        id: content
                        objectName: "sectionContent"
                        anchors.fill: parent
                        frame: frameModel
                        visible: !frameModel.showsSignInHero
                    }
                }
            }
        }
    }

    // The command palette covers the whole window while it is asked for, made afresh at each
    // opening. Should it fail to load, Escape at least takes the request back.
    Loader {
        id: commandPaletteSlot
        objectName: "commandPaletteSlot"
        anchors.fill: parent
        z: 10
        active: App.showPalette
        sourceComponent: active ? Shell.commandPalette(window) : null
    }
    Shortcut {
        sequence: "Escape"
        enabled: App.showPalette && commandPaletteSlot.status !== Loader.Ready
        onActivated: App.showPalette = false
    }

    // The new-poll sheet, made each time it is asked for, from any section.
    Loader {
        id: newPollSheetSlot
        objectName: "newPollSheetSlot"
        active: App.showNewPoll
        sourceComponent: active ? Shell.newPollSheet(window) : null
    }

    menuBar: AppMenuBar {}
}
