import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.App

// The strip that tells of a failure, the offline state or a finished action. It takes what
// it shows and hands the two gestures back.
Rectangle {
    id: root

    property string message
    property int kind: AppModel.Error // an AppModel.BannerKind
    property bool showRetry: false

    readonly property color tint: BannerStyle.tintOf(kind)

    signal retry()
    signal dismiss()

    implicitHeight: row.implicitHeight + 2 * Style.spaceM
    implicitWidth: row.implicitWidth + 2 * Style.spaceXXL
    radius: Style.radiusL
    color: Style.withAlpha(tint, 0.12)
    border.width: 1
    border.color: Style.withAlpha(tint, 0.25)

    RowLayout {
        id: row
        anchors.fill: parent
        anchors.leftMargin: Style.spaceXXL
        anchors.rightMargin: Style.spaceXXL
        anchors.topMargin: Style.spaceM
        anchors.bottomMargin: Style.spaceM
        spacing: Style.spaceL

        Icon {
            objectName: "bannerIcon"
            name: BannerStyle.symbolOf(root.kind)
            color: root.tint
            size: 16
        }
        Label {
            objectName: "bannerMessage"
            Layout.fillWidth: true
            text: root.message
            textFormat: Text.PlainText
            wrapMode: Text.WordWrap
            font.pixelSize: Typography.callout
        }
        Button {
            objectName: "bannerRetry"
            visible: root.showRetry
            text: qsTr("Retry")
            onClicked: root.retry()
            ToolTip.visible: hovered
            ToolTip.delay: 600
            ToolTip.text: qsTr("Retry (%1)").arg(retryShortcut.nativeText)
        }
        ToolButton {
            objectName: "bannerClose"
            flat: true
            icon.source: Style.icon("xmark", palette.buttonText)
            icon.width: 12
            icon.height: 12
            icon.color: "transparent"
            implicitWidth: 24
            implicitHeight: 24
            onClicked: root.dismiss()
            Accessible.name: qsTr("Close")
        }
    }

    Shortcut {
        id: retryShortcut
        sequence: "Ctrl+Shift+R"
        enabled: root.visible && root.showRetry
        onActivated: root.retry()
    }
}
