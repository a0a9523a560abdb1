import QtQuick
import QtQuick.Controls
import Quorvane.App

// The app's settings: account, notifications, the tray, the server. The view comes from the
// view table once it names one, and sets the window's size.
ApplicationWindow {
    id: window

    objectName: "settings"
    title: qsTr("Settings")
    width: hook.provided ? hook.implicitWidth : 620
    height: hook.provided ? hook.implicitHeight : 460
    minimumWidth: hook.provided ? hook.implicitWidth : 480
    minimumHeight: hook.provided ? hook.implicitHeight : 360
    // The panes are laid out for one size.
    maximumWidth: hook.provided ? hook.implicitWidth : 16777215
    maximumHeight: hook.provided ? hook.implicitHeight : 16777215

    ViewHook {
        id: hook
        anchors.fill: parent
        windowId: AppWindow.Settings
        title: qsTr("Settings")
        symbol: "gearshape"
        description: qsTr("Settings aren't available in this version yet.")
    }

    Shortcut {
        sequences: [StandardKey.Close]
        onActivated: window.close()
    }
}
