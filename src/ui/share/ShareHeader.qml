import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.App
import Quorvane.Components

// The title with the choice of type, the zone the times are shown in, and the hint.
ColumnLayout {
    id: header

    required property QuickShareModel share

    spacing: Style.spaceXL

    RowLayout {
        Layout.fillWidth: true
        spacing: Style.spaceM
        Icon {
            name: "paperplane.fill"
            size: 18
            color: Style.accent
            Accessible.ignored: true
        }
        Label {
            text: qsTr("Share times")
            font.pixelSize: Typography.title3
            font.bold: true
        }
        Item { Layout.fillWidth: true }
        ChoiceBox {
            objectName: "typePicker"
            Layout.preferredWidth: 200
            model: header.share.typeChoices
            currentIndex: header.share.typeIndex
            displayText: currentIndex < 0 ? "" : currentText
            onActivated: index => header.share.typeIndex = index
            Accessible.name: qsTr("Type")
        }
    }
    RowLayout {
        Layout.fillWidth: true
        spacing: Style.spaceM
        Label {
            text: qsTr("Times in")
            color: Style.secondary
        }
        ChoiceBox {
            objectName: "zonePicker"
            Layout.preferredWidth: 240
            model: header.share.zoneChoices
            currentIndex: header.share.zoneChoices.indexOf(header.share.zone)
            onActivated: index => header.share.zone = header.share.zoneChoices[index]
            Accessible.name: qsTr("Times in")
        }
        Item { Layout.fillWidth: true }
    }
    Label {
        objectName: "shareHint"
        Layout.fillWidth: true
        text: header.share.hint
        font.pixelSize: Typography.caption
        color: Style.secondary
        wrapMode: Text.WordWrap
    }
}
