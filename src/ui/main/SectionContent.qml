import QtQuick
import Quorvane.App

// The current section's screen. The one table from section to screen: each screen's module
// adds its row to screenUrl(); a section without a screen shows its placeholder.
Item {
    id: root

    required property MainWindowModel frame
    readonly property string section: App.section
    readonly property url screen: screenUrl(section)

    function screenUrl(section: string): url {
        switch (section) {
        case "today": return "qrc:/qt/qml/Quorvane/Today/TodayView.qml"
        default: return ""
        }
    }

    Loader {
        id: screenLoader
        objectName: "screenLoader"
        anchors.fill: parent
        source: root.screen
        active: root.screen.toString().length > 0
    }

    SectionPlaceholder {
        objectName: "sectionPlaceholder"
        anchors.fill: parent
        visible: !screenLoader.active
        title: root.frame.title
        symbol: root.frame.symbol
    }

    // A new section fades in quickly rather than snapping.
    onSectionChanged: fadeIn.restart()
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
