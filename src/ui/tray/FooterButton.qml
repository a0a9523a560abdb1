import QtQuick
import QtQuick.Controls
import Quorvane.Components

// A symbol-only footer button; its label is what a screen reader says and, unless told
// otherwise, its tool tip.
SymbolButton {
    id: root

    property string label
    property string toolTip: label

    symbolSize: 14
    Accessible.name: label
    ToolTip.visible: hovered
    ToolTip.delay: 600
    ToolTip.text: toolTip
}
