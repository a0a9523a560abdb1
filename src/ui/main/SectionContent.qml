import QtQuick
import Quorvane.App

// The current section's screen, as the view table names it; a section without a screen
// shows its placeholder. Only the shown screen exists.
Item {
    id: root

    required property MainWindowModel frame
    readonly property string section: App.section
    readonly property Component screen: Shell.sectionView(section, root)
    // The screen on show, once made.
    readonly property Item screenItem: screenLoader.item

    Loader {
        id: screenLoader
        objectName: "screenLoader"
        anchors.fill: parent
        sourceComponent: root.screen
        active: root.screen !== null
    }

    // By file name: the window's start doesn't compile what it seldom shows.
    Loader {
        anchors.fill: parent
        active: !screenLoader.active
        source: active ? "SectionPlaceholder.qml" : ""
        onLoaded: {
            item.objectName = "sectionPlaceholder"
            item.frame = root.frame
        }
    }

    // A new section fades in quickly rather than snapping; the first one is simply there.
    property bool shown: false
    Component.onCompleted: shown = true
    onSectionChanged: {
        if (shown)
            fadeIn.restart()
    }
    NumberAnimation {
        id: fadeIn
        target: root
        property: "opacity"
        from: 0.4
        to: 1
        duration: 180
        easing.type: Easing.OutCubic
    }
}
