import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.Components

// A card with a heading over a chart given as its child.
Card {
    id: root

    property string heading

    padding: Style.spaceXXL + Style.spaceXXS
    spacing: Style.spaceL

    Label {
        text: root.heading
        font.pixelSize: Typography.headline
        font.bold: true
    }
}
