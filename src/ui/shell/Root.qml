import QtQuick
import Quorvane.App
import Quorvane.Main

// The application's windows, by id: the main window opens at launch (unless the app starts
// in the tray); the others are made, from the view table, the first time they are asked for
// and kept afterwards. Closing a window only hides it; the app goes on in the tray.
QtObject {
    id: root

    property MainWindow mainWindow
    readonly property Component mainComponent: Component {
        MainWindow {
            objectName: "main"
            // Each time the main window's content appears: start the model, and bring up the
            // welcome guide until it has been finished once.
            onVisibleChanged: {
                if (visible)
                    root.bootstrap()
            }
        }
    }

    // The other windows made so far, by id.
    property var made: ({})

    // Started in the tray, the model runs for the tray's sake, and the main window is made
    // when it is first asked for; nothing of it is kept up to date meanwhile.
    Component.onCompleted: {
        if (Shell.startHidden)
            App.start()
        else
            open(AppWindow.Main)
    }

    function bootstrap() {
        App.start()
        if (!App.onboarded)
            open(AppWindow.Onboarding)
    }

    // The window with that id, made on first use.
    function windowFor(windowId: int): Window {
        if (windowId === AppWindow.Main) {
            if (!mainWindow)
                mainWindow = mainComponent.createObject(root) as MainWindow
            return mainWindow
        }
        if (!made[windowId]) {
            const component = Shell.window(windowId, root)
            const window = component ? component.createObject(root) as Window : null
            if (!window) {
                console.error("window " + windowId + ": " + (component ? component.errorString() : "none"))
                return null
            }
            made[windowId] = window
        }
        return made[windowId]
    }

    function open(windowId: int) {
        const window = windowFor(windowId)
        if (!window)
            return
        if (window.visibility === Window.Minimized)
            window.showNormal()
        else
            window.show()
        window.raise()
        window.requestActivate()
    }

    property Connections shellRequests: Connections {
        target: Shell
        function onOpenRequested(windowId: int) {
            root.open(windowId)
        }
    }
}
