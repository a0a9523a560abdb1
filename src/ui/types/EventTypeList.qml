pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import Quorvane.App
import Quorvane.Components

// The host's event types in the booking page's order. The arrow keys and a click select;
// Alt+Up and Alt+Down, or dragging a row, move the type; the menu key or a right click opens
// its actions.
ListView {
    id: root

    required property EventTypeListModel types

    model: types
    clip: true
    currentIndex: types.currentRow
    keyNavigationEnabled: false // the keys below move the model's selection
    highlightFollowsCurrentItem: false
    boundsBehavior: Flickable.StopAtBounds
    topMargin: Style.spaceM
    leftMargin: Style.spaceM
    rightMargin: Style.spaceM
    bottomMargin: Style.spaceM
    activeFocusOnTab: true
    ScrollBar.vertical: ScrollBar {}

    Accessible.role: Accessible.List
    Accessible.name: qsTr("Event types")

    function select(row: int) {
        if (row < 0 || row >= count)
            return
        types.selectRow(row)
        positionViewAtIndex(row, ListView.Contain)
    }

    Keys.onPressed: event => {
        const alt = event.modifiers & Qt.AltModifier
        if (event.key === Qt.Key_Up && alt)
            types.moveCurrent(-1)
        else if (event.key === Qt.Key_Down && alt)
            types.moveCurrent(1)
        else if (event.key === Qt.Key_Up)
            select(currentIndex < 0 ? count - 1 : currentIndex - 1)
        else if (event.key === Qt.Key_Down)
            select(currentIndex + 1)
        else if (event.key === Qt.Key_Menu && currentItem)
            actions.show(currentIndex, currentItem)
        else
            return
        event.accepted = true
    }

    delegate: EventTypeRow {
        id: row
        width: ListView.view.width - root.leftMargin - root.rightMargin
        selected: typeId === root.types.selection
        focused: selected && root.activeFocus
        z: dragging ? 1 : 0
        onClicked: {
            root.forceActiveFocus()
            root.types.selection = typeId
        }
        onMenuRequested: {
            root.forceActiveFocus()
            root.types.selection = typeId
            actions.show(index, row)
        }
        // Whole rows: the row lands where its middle was let go.
        onDropped: by => root.types.move(index, Math.max(0, Math.min(root.count - 1,
                                                                      index + Math.round(by / height))))
    }

    TypeActions {
        id: actions
        objectName: "typeActions"
        types: root.types
    }
}
