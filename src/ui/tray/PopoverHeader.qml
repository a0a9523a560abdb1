import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.Components

// The application's mark and name over today's date.
RowLayout {
    id: root

    property string date

    spacing: Style.spaceM

    AppMark {
        size: 22
    }
    ColumnLayout {
        spacing: 0
        Label {
            text: "Quorvane"
            font.pixelSize: Typography.headline
            font.bold: true
        }
        Label {
            objectName: "popoverDate"
            text: root.date
            font.pixelSize: Typography.caption
            color: Style.secondary
        }
    }
    Item { Layout.fillWidth: true }
}
