import QtQuick
import Quorvane.App
import Quorvane.Components

// A section whose screen this build does not have, named as such.
EmptyPanel {
    property MainWindowModel frame

    title: frame ? frame.title : ""
    symbol: frame ? frame.symbol : ""
    description: qsTr("This section isn't available in this version yet.")
}
