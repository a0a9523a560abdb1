import QtQuick
import Quorvane.Components

// A section whose screen this build does not have yet, named as such.
EmptyPanel {
    description: qsTr("This section isn't available in this version yet.")
}
