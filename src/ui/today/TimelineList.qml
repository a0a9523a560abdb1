pragma ComponentBehavior: Bound
import QtQuick
import Quorvane.App
import Quorvane.Components

// The day's bookings, one row each, in the model's order.
Column {
    id: root

    required property TimelineModel timeline

    spacing: Style.spaceM

    Repeater {
        model: root.timeline
        delegate: TimelineRow {
            width: root.width
            onJoin: row => root.timeline.join(row)
        }
    }
}
