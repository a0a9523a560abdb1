import QtQuick
import QtQuick.Controls
import Quorvane.App
import Quorvane.Components

// A type's menu: its link, a copy, and delete, which the last type doesn't offer.
Menu {
    id: root

    required property EventTypeListModel types
    property int row: -1

    function show(row: int, item: Item) {
        root.row = row
        popup(item, item.width / 3, item.height)
    }

    PlainMenuItem {
        objectName: "copyLinkEntry"
        text: qsTr("Copy Link")
        onTriggered: root.types.copyLink(root.row)
    }
    PlainMenuItem {
        objectName: "duplicateEntry"
        text: qsTr("Duplicate")
        onTriggered: root.types.duplicate(root.row)
    }
    MenuSeparator {}
    PlainMenuItem {
        objectName: "deleteEntry"
        text: qsTr("Delete")
        textColor: root.types.count > 1 ? Style.red : Style.secondary
        enabled: root.types.count > 1
        onTriggered: root.types.remove(root.row)
    }
}
