import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.Components

// One time a poll offers: when, a bar as long as its share of the leading count (green when
// it leads), and the count. Read as one element.
RowLayout {
    id: row

    required property string time
    required property int votes
    required property real share
    required property bool leads
    required property string accessibleText

    spacing: Style.spaceL

    Accessible.role: Accessible.StaticText
    Accessible.name: accessibleText

    Label {
        Layout.preferredWidth: 150
        text: row.time
        font.pixelSize: Typography.callout
        elide: Text.ElideRight
        Accessible.ignored: true
    }
    Rectangle {
        id: track
        Layout.fillWidth: true
        Layout.preferredHeight: 14
        radius: Style.radiusS
        color: Style.withAlpha(palette.windowText, 0.06)

        Rectangle {
            objectName: "voteBar"
            height: parent.height
            width: Math.max(4, track.width * row.share)
            radius: Style.radiusS
            opacity: row.leads ? 1 : 0.5
            gradient: Gradient {
                orientation: Gradient.Horizontal
                GradientStop { position: 0; color: row.leads ? Style.green : Style.accent }
                GradientStop { position: 1; color: Qt.lighter(row.leads ? Style.green : Style.accent, 1.2) }
            }
        }
    }
    Label {
        Layout.preferredWidth: 22
        horizontalAlignment: Text.AlignRight
        text: row.votes
        font.pixelSize: Typography.callout
        Accessible.ignored: true
    }
}
