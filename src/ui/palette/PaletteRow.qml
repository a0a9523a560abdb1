import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.Components

// One command: its icon, title and subtitle; the accent colour while highlighted.
AbstractButton {
    id: row

    required property int index
    required property string title
    required property string subtitle
    required property string symbol
    property bool highlighted

    objectName: "paletteRow"
    focusPolicy: Qt.NoFocus // the keys belong to the query field
    leftPadding: Style.spaceXL
    rightPadding: Style.spaceXL
    topPadding: 7
    bottomPadding: 7
    Accessible.role: Accessible.Button
    Accessible.name: title

    contentItem: RowLayout {
        spacing: Style.spaceL
        Icon {
            Layout.preferredWidth: 20
            name: row.symbol
            size: 16
            color: row.highlighted ? Style.accentText : Style.secondary
        }
        ColumnLayout {
            Layout.fillWidth: true
            spacing: 1
            Label {
                Layout.fillWidth: true
                text: row.title
                textFormat: Text.PlainText
                elide: Text.ElideRight
                color: row.highlighted ? Style.accentText : palette.windowText
            }
            Label {
                Layout.fillWidth: true
                visible: text.length > 0
                text: row.subtitle
                textFormat: Text.PlainText
                elide: Text.ElideRight
                font.pixelSize: Typography.caption
                color: row.highlighted ? Style.withAlpha(Style.accentText, 0.8) : Style.secondary
            }
        }
    }

    background: Rectangle {
        radius: 7
        color: row.highlighted ? Style.accent : row.hovered ? Style.hoverFill : "transparent"
    }
}
