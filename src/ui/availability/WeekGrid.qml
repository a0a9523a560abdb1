pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import Quorvane.App
import Quorvane.Components

// The week on one card: the hour gutter from 6 AM, then the days from Monday, whatever the
// locale's first day.
Rectangle {
    id: grid

    required property AvailabilityViewModel view

    implicitHeight: 636 + 2 * Style.spaceL
    radius: Style.radiusXXL
    color: Style.withAlpha(palette.windowText, 0.035)
    border.color: Style.hairline(palette.window)

    Row {
        id: row
        x: Style.spaceL
        y: Style.spaceL
        width: grid.width - 2 * Style.spaceL

        Column {
            width: 48
            Accessible.ignored: true
            Item {
                width: 1
                height: 28
            }
            Repeater {
                model: grid.view.hourMarks
                delegate: Label {
                    required property string modelData
                    width: 48 - Style.spaceXS
                    height: 38
                    horizontalAlignment: Text.AlignRight
                    verticalAlignment: Text.AlignTop
                    text: modelData
                    color: Style.secondary
                    font.pixelSize: Typography.caption2
                }
            }
        }
        Item {
            width: 4
            height: 1
        }
        Repeater {
            model: grid.view.weekdays
            delegate: DayColumn {
                required property int modelData
                objectName: "day" + modelData
                width: (row.width - 52) / 7
                weekday: modelData
                focusMode: grid.view.focusMode
            }
        }
    }
}
