import QtQuick
import QtQuick.Controls

// A combo box whose text field (the style's) speaks with the box's own accessible name, so a
// screen reader meets no unnamed field inside it.
ComboBox {
    id: root

    Component.onCompleted: {
        if (contentItem && contentItem.Accessible)
            contentItem.Accessible.name = Qt.binding(() => root.Accessible.name)
    }
}
