import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.App
import Quorvane.Components

OnboardingStep {
    id: root

    required property OnboardingModel guide

    Label {
        Layout.fillWidth: true
        text: qsTr("You're all set")
        font.pixelSize: Typography.title
        font.bold: true
    }
    ColumnLayout {
        Layout.fillWidth: true
        spacing: Style.spaceM

        SymbolLabel {
            Layout.fillWidth: true
            text: root.guide.paletteTip
            symbol: "command"
            color: Style.secondary
            pixelSize: Typography.callout
        }
        SymbolLabel {
            Layout.fillWidth: true
            text: root.guide.shareTip
            symbol: "paperplane"
            color: Style.secondary
            pixelSize: Typography.callout
        }
        SymbolLabel {
            Layout.fillWidth: true
            text: qsTr("The tray shows your next meeting")
            symbol: "menubar.rectangle"
            color: Style.secondary
            pixelSize: Typography.callout
        }
    }
}
