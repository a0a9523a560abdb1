import QtQuick
import QtQuick.Controls
import Quorvane.Components

// A small secondary heading over a part of the popover.
Label {
    font.pixelSize: Typography.caption
    font.weight: Font.DemiBold
    color: Style.secondary
}
