pragma ComponentBehavior: Bound
import QtQuick
import Quorvane.Components

// A day's chips in as many columns of at least 86 pixels as the width allows.
Item {
    id: flow

    required property var chips // the day's ShareChipsModel
    signal tap(int chip)

    readonly property int columns: Math.max(1, Math.floor((width + Style.spaceS) / (86 + Style.spaceS)))
    readonly property real cellWidth: (width - (columns - 1) * Style.spaceS) / columns

    implicitHeight: grid.implicitHeight

    Grid {
        id: grid
        columns: flow.columns
        spacing: Style.spaceS
        Repeater {
            model: flow.chips
            delegate: TimeChip {
                required property int index
                width: flow.cellWidth
                onClicked: flow.tap(index)
            }
        }
    }
}
