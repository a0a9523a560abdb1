pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Dialogs
import QtQuick.Layouts
import Quorvane.App
import Quorvane.Components

// The colour well, title and on/off switch; the palette's chips; the description, which
// grows from two lines to four.
FormSection {
    id: root

    required property EventTypeEditorModel editor

    RowLayout {
        Layout.fillWidth: true
        spacing: Style.spaceXL

        Button {
            objectName: "colorWell"
            implicitWidth: 36
            implicitHeight: 24
            onClicked: colorDialog.open()
            Keys.onReturnPressed: clicked()
            Accessible.name: qsTr("Color")
            ToolTip.visible: hovered
            ToolTip.delay: 600
            ToolTip.text: Accessible.name
            background: Rectangle {
                radius: Style.radiusS
                color: root.editor.color
                border.width: parent.visualFocus ? 2 : 1
                border.color: parent.visualFocus ? palette.highlight : Style.separator(palette.window)
            }
        }
        TextField {
            objectName: "titleField"
            Layout.fillWidth: true
            text: root.editor.title
            onTextEdited: root.editor.title = text
            placeholderText: qsTr("Title")
            font.pixelSize: Typography.title3
            font.weight: Font.DemiBold
            Accessible.name: qsTr("Title")
            background: Rectangle {
                radius: Style.radiusS
                color: "transparent"
                border.color: parent.activeFocus ? palette.highlight : "transparent"
            }
        }
        Switch {
            objectName: "activeSwitch"
            text: qsTr("Active")
            Accessible.name: text
            checked: root.editor.active
            onToggled: root.editor.active = checked
            ToolTip.visible: hovered
            ToolTip.delay: 600
            ToolTip.text: qsTr("Inactive types are hidden from your booking page")
        }
    }

    ColorChips {
        editor: root.editor
    }

    ScrollView {
        id: descriptionScroll
        Layout.fillWidth: true
        // Two lines at least, four at most; past that it scrolls.
        Layout.preferredHeight: Math.max(2 * lineHeight, Math.min(4 * lineHeight, description.contentHeight))
                                + description.topPadding + description.bottomPadding
        readonly property real lineHeight: fontInfo.height

        FontMetrics {
            id: fontInfo
            font: description.font
        }
        TextArea {
            id: description
            objectName: "descriptionField"
            text: root.editor.description
            onTextChanged: if (text !== root.editor.description) root.editor.description = text
            placeholderText: qsTr("Description (shown on your booking page)")
            wrapMode: TextEdit.Wrap
            textFormat: TextEdit.PlainText
            Accessible.name: qsTr("Description")
            // Tab moves on, as in every other field.
            Keys.onTabPressed: nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
            Keys.onBacktabPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)
        }
    }

    ColorDialog {
        id: colorDialog
        objectName: "colorDialog"
        title: qsTr("Color")
        selectedColor: root.editor.color
        onAccepted: root.editor.color = selectedColor
    }
}
