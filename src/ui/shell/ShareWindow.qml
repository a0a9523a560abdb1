import QtQuick
import QtQuick.Controls
import Quorvane.App

// "Share Times": picks a few open times and copies them as a message. The view comes from
// the view table once it names one; the window can shrink to the view's own size.
ApplicationWindow {
    id: window

    objectName: "share"
    title: qsTr("Share Times")
    width: 560
    height: 560
    minimumWidth: hook.provided ? Math.min(hook.implicitWidth, 560) : 420
    minimumHeight: hook.provided ? Math.min(hook.implicitHeight, 560) : 360

    ViewHook {
        id: hook
        anchors.fill: parent
        windowId: AppWindow.Share
        title: qsTr("Share Times")
        symbol: "paperplane"
        description: qsTr("Picking and sharing open times isn't available in this version yet.")
    }

    Shortcut {
        sequences: [StandardKey.Close]
        onActivated: window.close()
    }
}
