import QtQuick
import QtQuick.Controls

// Stands in for the Refresh button's symbol while a refresh runs.
BusyIndicator {
    objectName: "refreshBusy"
    width: 18
    height: 18
    padding: 0
    // Spins only where it can be seen: a hidden window costs no CPU.
    running: Window.window !== null && Window.window.visible
}
