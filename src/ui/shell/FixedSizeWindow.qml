import QtQuick
import QtQuick.Controls

// A window exactly the size of the view it shows, for the welcome guide and About.
ApplicationWindow {
    id: window

    required property int windowId
    property alias placeholderTitle: hook.title
    property alias placeholderSymbol: hook.symbol
    property alias placeholderDescription: hook.description
    readonly property alias view: hook.content

    width: hook.implicitWidth
    height: hook.implicitHeight
    minimumWidth: width
    maximumWidth: width
    minimumHeight: height
    maximumHeight: height

    ViewHook {
        id: hook
        anchors.fill: parent
        windowId: window.windowId
    }

    Shortcut {
        sequences: [StandardKey.Close]
        onActivated: window.close()
    }
}
