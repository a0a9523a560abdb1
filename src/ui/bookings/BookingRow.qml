import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.Components

// One booking in the list: the type's colour bar, the guest with the status pill, the time
// and type, and a camera when there is a meeting to join. Read as one element; struck
// through when cancelled. The first booking of a day carries the day's heading above it.
Column {
    id: entry

    required property int index
    required property string dayTitle
    required property string bookingId
    required property string name
    required property string detail
    required property color typeColor
    required property string status
    required property color statusTint
    required property bool cancelled
    required property bool showsVideo
    required property string accessibleText
    required property string emailLabel
    required property bool canJoin
    required property bool canReschedule
    required property string noShowTitle

    property bool selected: false
    property bool focused: false

    signal clicked()
    signal menuRequested()

    Label {
        objectName: "dayHeading"
        visible: entry.dayTitle.length > 0
        width: entry.width
        topPadding: entry.index > 0 ? Style.spaceXL : Style.spaceXS
        bottomPadding: Style.spaceXS
        leftPadding: Style.spaceM
        text: entry.dayTitle
        font.pixelSize: Typography.caption
        font.weight: Font.DemiBold
        color: Style.secondary
    }

    ItemDelegate {
        id: row
        width: entry.width
        topPadding: Style.spaceXS
        bottomPadding: Style.spaceXS
        leftPadding: Style.spaceM
        rightPadding: Style.spaceM
        focusPolicy: Qt.NoFocus
        onClicked: entry.clicked()
        highlighted: entry.selected

        Accessible.role: Accessible.ListItem
        Accessible.name: entry.accessibleText
        Accessible.selected: entry.selected

        background: Rectangle {
            radius: Style.radiusM
            color: entry.selected ? Style.withAlpha(palette.highlight, entry.focused ? 0.22 : 0.12)
                                : row.hovered ? Style.hoverFill : "transparent"
        }

        TapHandler {
            acceptedButtons: Qt.RightButton
            onTapped: entry.menuRequested()
        }

        contentItem: RowLayout {
            spacing: Style.spaceL

            Rectangle {
                Layout.preferredWidth: 4
                Layout.preferredHeight: 34
                radius: 2
                gradient: Gradient {
                    GradientStop { position: 0; color: Qt.lighter(entry.typeColor, 1.15) }
                    GradientStop { position: 1; color: entry.typeColor }
                }
            }
            ColumnLayout {
                Layout.fillWidth: true
                spacing: Style.spaceXXS
                RowLayout {
                    Layout.fillWidth: true
                    spacing: Style.spaceS
                    Label {
                        objectName: "rowName"
                        Layout.fillWidth: implicitWidth > width
                        Layout.maximumWidth: implicitWidth
                        text: entry.name
                        textFormat: Text.PlainText
                        elide: Text.ElideRight
                        font.pixelSize: Typography.body
                        font.weight: Font.Medium
                        font.strikeout: entry.cancelled
                        color: entry.cancelled ? Style.secondary : palette.text
                        Accessible.ignored: true
                    }
                    Pill {
                        visible: entry.status.length > 0
                        text: entry.status
                        tint: entry.statusTint
                        Accessible.ignored: true
                    }
                    Item {
                        Layout.fillWidth: true
                    }
                }
                Label {
                    Layout.fillWidth: true
                    text: entry.detail
                    textFormat: Text.PlainText
                    elide: Text.ElideRight
                    font.pixelSize: Typography.caption
                    font.strikeout: entry.cancelled
                    color: Style.secondary
                    Accessible.ignored: true
                }
            }
            Icon {
                objectName: "videoMark"
                visible: entry.showsVideo
                name: "video.fill"
                color: Style.green
                size: 14
            }
        }
    }
}
