import QtQuick
import QtQuick.Layouts

// A rounded panel that groups a few facts or a block of text; its children stack from the
// top.
Rectangle {
    id: root

    default property alias content: column.data
    property alias spacing: column.spacing
    property int padding: Style.spaceXXL

    implicitWidth: column.implicitWidth + 2 * padding
    implicitHeight: column.implicitHeight + 2 * padding
    radius: Style.radiusXXL
    color: Style.withAlpha(palette.windowText, 0.035)
    border.color: Style.hairline(palette.window)
    border.width: 1

    ColumnLayout {
        id: column
        x: root.padding
        y: root.padding
        width: root.width - 2 * root.padding
        spacing: Style.spaceM
    }
}
