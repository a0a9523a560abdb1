import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.Components

// One pane of settings: its sections stacked from the top, scrolling when they don't fit.
ScrollView {
    id: root

    default property alias content: column.data

    contentWidth: availableWidth
    clip: true

    ColumnLayout {
        id: column
        x: Style.space4XL
        width: root.availableWidth - 2 * Style.space4XL
        spacing: Style.space3XL

        Item { Layout.preferredHeight: Style.spaceS } // the top margin
    }
}
