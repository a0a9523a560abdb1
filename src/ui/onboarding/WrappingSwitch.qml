import QtQuick
import QtQuick.Controls

// A switch whose text wraps onto more lines instead of being cut off.
Switch {
    id: control

    contentItem: Label {
        leftPadding: control.indicator.width + control.spacing
        text: control.text
        wrapMode: Text.WordWrap
        verticalAlignment: Text.AlignVCenter
    }
}
