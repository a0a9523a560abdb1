import QtQuick
import Quorvane.App
import Quorvane.Main

// The application's windows. The main window opens at launch; the others on demand.
QtObject {
    id: root

    property MainWindow mainWindow: MainWindow {
        visible: true
        Component.onCompleted: App.start()
    }
}
