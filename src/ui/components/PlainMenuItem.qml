import QtQuick
import QtQuick.Controls

// A menu entry whose text may come from the server: shown as the characters it holds, never
// as markup. A hidden entry takes no room.
MenuItem {
    id: root

    property color textColor: root.highlighted ? root.palette.highlightedText : root.palette.windowText

    height: visible ? implicitHeight : 0

    contentItem: Label {
        leftPadding: root.checkable ? root.indicator.width + root.spacing : 0
        text: root.text
        textFormat: Text.PlainText
        elide: Text.ElideRight
        verticalAlignment: Text.AlignVCenter
        color: root.enabled ? root.textColor : Style.secondary
        font: root.font
    }
}
