import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.Components

// One group of the editor's form: a small heading, if any, over a card of rows.
ColumnLayout {
    id: root

    property string title
    default property alias content: card.content

    spacing: Style.spaceS

    Label {
        visible: root.title.length > 0
        leftPadding: Style.spaceXS
        text: root.title
        font.pixelSize: Typography.caption
        font.weight: Font.DemiBold
        color: Style.secondary
        Accessible.role: Accessible.Heading
    }
    Card {
        id: card
        Layout.fillWidth: true
        spacing: Style.spaceL
    }
}
