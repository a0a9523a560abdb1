import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.Components

// A label and its value on one line, the value to the right, for reading only.
RowLayout {
    id: root

    property string label
    property string value

    Layout.fillWidth: true
    spacing: Style.spaceL
    Accessible.role: Accessible.StaticText
    Accessible.name: label + ": " + value

    Label {
        text: root.label
        Accessible.ignored: true
    }
    Label {
        objectName: root.objectName.length > 0 ? root.objectName + "Value" : ""
        text: root.value
        textFormat: Text.PlainText
        color: Style.secondary
        elide: Text.ElideMiddle
        horizontalAlignment: Text.AlignRight
        Layout.fillWidth: true
        Accessible.ignored: true
    }
}
