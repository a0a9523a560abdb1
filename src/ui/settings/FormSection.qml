import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.Components

// A group of settings under an optional heading, on a card.
ColumnLayout {
    id: root

    property string title
    default property alias content: card.content

    Layout.fillWidth: true
    spacing: Style.spaceS

    Label {
        visible: root.title.length > 0
        text: root.title
        font.pixelSize: Typography.headline
        font.bold: true
        Accessible.role: Accessible.Heading
    }
    Card {
        id: card
        Layout.fillWidth: true
        padding: Style.spaceXL
        spacing: Style.spaceL
    }
}
