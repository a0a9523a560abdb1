import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import QtQuick.Templates as T
import Quorvane.App
import Quorvane.Components

// What a menu of the menu bar is made of: its items, the column that lists them, its frame and
// its separators. `make` makes one part, owned by `owner` so that it lives as long as the
// menu, and without a parent item, which the menu takes it into as it is given.
QtObject {
    id: parts

    required property QtObject owner

    // A menu item with its key written at the right, as the desktop writes keys.
    component KeyedItem: MenuItem {
        id: item

        readonly property string keys: action && action.command ? action.command.shortcutText : ""

        contentItem: RowLayout {
            spacing: Style.space4XL
            opacity: item.enabled ? 1 : 0.45

            Label {
                Layout.fillWidth: true
                text: item.text
                textFormat: Text.PlainText
                color: item.highlighted ? item.palette.highlightedText : item.palette.text
            }
            Label {
                objectName: "keys"
                visible: text.length > 0
                text: item.keys
                textFormat: Text.PlainText
                color: item.highlighted ? item.palette.highlightedText : item.palette.text
                opacity: 0.7
            }
        }
    }

    readonly property Component item: Component { KeyedItem {} }
    readonly property Component list: Component {
        ListView {
            required property T.Menu menu
            implicitHeight: contentHeight
            model: menu.contentModel
            currentIndex: menu.currentIndex
            interactive: false
        }
    }
    readonly property Component frame: Component {
        Item {
            id: frame
            required property T.Menu menu
            implicitWidth: 200
            implicitHeight: 20
            // A one-pixel shadow down and to the right, under the frame.
            Rectangle {
                anchors.fill: parent
                anchors.topMargin: 1
                anchors.leftMargin: 1
                anchors.bottomMargin: -1
                anchors.rightMargin: -1
                color: Style.withAlpha(frame.menu.palette.shadow, 0.2)
            }
            Rectangle {
                anchors.fill: parent
                color: frame.menu.palette.base
                border.color: Style.windowEdge(frame.menu.palette.window)
            }
        }
    }
    readonly property Component separator: Component { MenuSeparator {} }

    function make(component: Component, properties: var): Item {
        const made = component.createObject(parts.owner, properties) as Item
        made.parent = null
        return made
    }
}
