import QtQuick
import Quorvane.Components

// One dot per step, the current one in the accent colour; read out as "Step 2 of 4".
Row {
    id: root

    property int step
    property int steps
    property string label

    spacing: Style.spaceS
    Accessible.role: Accessible.Indicator
    Accessible.name: root.label

    Repeater {
        model: root.steps
        delegate: Rectangle {
            required property int index
            width: 7
            height: 7
            radius: width / 2
            color: index === root.step ? Style.accent : Style.secondary
            opacity: index === root.step ? 1 : 0.3
            Accessible.ignored: true
        }
    }
}
