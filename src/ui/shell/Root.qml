import QtQuick
import Quorvane.App
import Quorvane.Main

// The application's windows. The main window opens at launch; the others on demand, through
// Shell.open(id).
QtObject {
    id: root

    property MainWindow mainWindow: MainWindow {
        visible: true
        Component.onCompleted: App.start()
    }

    property Connections shellRequests: Connections {
        target: Shell
        function onOpenRequested(windowId: string) {
            if (windowId === "main") {
                root.mainWindow.show()
                root.mainWindow.raise()
                root.mainWindow.requestActivate()
            }
        }
    }
}
