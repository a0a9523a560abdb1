import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.Components

// One labelled line of the facts card: a symbol and a label at the left, the value after
// them. The value is given as a child.
RowLayout {
    id: root

    property string label
    property string symbol
    default property alias value: valueSlot.data

    spacing: Style.spaceM

    Icon {
        Layout.alignment: Qt.AlignTop
        Layout.topMargin: Style.spaceXXS
        name: root.symbol
        size: 14
        color: Style.secondary
    }
    Label {
        Layout.preferredWidth: 86
        Layout.alignment: Qt.AlignTop
        text: root.label
        color: Style.secondary
        font.pixelSize: Typography.callout
    }
    Item {
        id: valueSlot
        Layout.fillWidth: true
        implicitHeight: childrenRect.height
    }
}
