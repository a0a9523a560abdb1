import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.App
import Quorvane.Components

// Who made the application, and where to find them.
ColumnLayout {
    id: root

    required property AboutModel about

    visible: about.madeBy.length > 0
    spacing: Style.spaceS

    RowLayout {
        spacing: Style.spaceS
        Icon {
            name: "person.crop.circle"
            size: 18
        }
        Label {
            objectName: "madeBy"
            text: root.about.madeBy
            textFormat: Text.PlainText
            font.pixelSize: Typography.headline
            font.bold: true
        }
    }
    Label {
        Layout.fillWidth: true
        text: qsTr("Vibe coded with an AI assistant, one idea at a time.")
        wrapMode: Text.WordWrap
        font.pixelSize: Typography.callout
        color: Style.secondary
    }
    LinkRow {
        objectName: "authorLinks"
        links: root.about.authorLinks
        onActivated: url => root.about.open(url)
    }
}
