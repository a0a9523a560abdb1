pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.App
import Quorvane.Components

// The selected booking in full: who and what, the facts, the guest's answers and notes, and
// what can still be done with it. Texts from the guest can be selected and copied.
ScrollView {
    id: root

    required property BookingDetailModel detail
    property bool confirmCancel: false

    contentWidth: availableWidth

    onConfirmCancelChanged: confirmCancel ? cancelDialog.open() : cancelDialog.close()

    Shortcut {
        sequence: "Ctrl+Delete"
        enabled: root.visible && root.detail.showsReschedule
        onActivated: root.confirmCancel = true
    }

    Item {
        width: root.availableWidth
        implicitHeight: column.implicitHeight + 2 * Style.space4XL

    ColumnLayout {
        id: column
        width: parent.width - 2 * Style.space4XL
        x: Style.space4XL
        y: Style.space4XL
        spacing: Style.space3XL

        RowLayout {
            Layout.fillWidth: true
            spacing: Style.spaceL
            ColumnLayout {
                Layout.fillWidth: true
                spacing: Style.spaceXS
                SelectableText {
                    objectName: "detailName"
                    Layout.fillWidth: true
                    text: root.detail.name
                    font.pixelSize: Typography.largeTitle
                    font.bold: true
                }
                RowLayout {
                    spacing: Style.spaceS
                    TypeDot {
                        size: 11
                        color: root.detail.typeColor
                    }
                    Label {
                        text: root.detail.typeTitle
                        textFormat: Text.PlainText
                        font.pixelSize: Typography.title3
                    }
                }
                SelectableText {
                    objectName: "detailEmail"
                    Layout.fillWidth: true
                    text: root.detail.email
                    color: Style.secondary
                }
            }
            Pill {
                Layout.alignment: Qt.AlignTop
                visible: root.detail.status.length > 0
                text: root.detail.status
                tint: root.detail.statusTint
            }
        }

        BookingFacts {
            Layout.fillWidth: true
            detail: root.detail
        }

        Card {
            objectName: "answersCard"
            Layout.fillWidth: true
            visible: root.detail.questions.length > 0
            spacing: Style.spaceM
            Label {
                text: qsTr("Answers")
                font.pixelSize: Typography.headline
                font.bold: true
            }
            Repeater {
                model: root.detail.questions.length
                delegate: ColumnLayout {
                    required property int index
                    Layout.fillWidth: true
                    spacing: Style.spaceXXS
                    Label {
                        Layout.fillWidth: true
                        text: root.detail.questions[index]
                        textFormat: Text.PlainText
                        wrapMode: Text.WordWrap
                        font.pixelSize: Typography.caption
                        color: Style.secondary
                    }
                    SelectableText {
                        Layout.fillWidth: true
                        text: root.detail.answers[index]
                    }
                }
            }
        }

        Card {
            objectName: "notesCard"
            Layout.fillWidth: true
            visible: root.detail.notes.length > 0
            spacing: Style.spaceS
            Label {
                text: qsTr("Notes")
                font.pixelSize: Typography.headline
                font.bold: true
            }
            SelectableText {
                objectName: "notesText"
                Layout.fillWidth: true
                text: root.detail.notes
            }
        }

        RowLayout {
            Layout.fillWidth: true
            spacing: Style.spaceM
            ProminentButton {
                objectName: "joinButton"
                visible: root.detail.showsJoin
                text: qsTr("Join Meet")
                symbol: "video.fill"
                onClicked: root.detail.join()
            }
            Button {
                objectName: "rescheduleButton"
                visible: root.detail.showsReschedule
                text: qsTr("Reschedule")
                icon.source: Style.icon("arrow.triangle.2.circlepath", palette.buttonText)
                onClicked: root.detail.rescheduleMessage()
                ToolTip.visible: hovered
                ToolTip.delay: 600
                ToolTip.text: qsTr("Copies a message with your booking link so they can pick a new time")
            }
            Button {
                objectName: "cancelButton"
                visible: root.detail.showsReschedule
                text: qsTr("Cancel")
                icon.source: Style.icon("xmark.circle", Style.red)
                palette.buttonText: Style.red
                onClicked: root.confirmCancel = true
                ToolTip.visible: hovered
                ToolTip.delay: 600
                ToolTip.text: qsTr("Cancel this booking (Ctrl+Delete)")
            }
            Switch {
                objectName: "noShowSwitch"
                visible: root.detail.showsNoShow
                text: qsTr("No-show")
                checked: root.detail.noShow
                // The switch shows what the server holds: the change shows once the
                // refresh after it has come back.
                onToggled: {
                    root.detail.setNoShow(checked)
                    checked = Qt.binding(() => root.detail.noShow)
                }
            }
            Item {
                Layout.fillWidth: true
            }
        }
    }
    }

    ConfirmDialog {
        id: cancelDialog
        objectName: "cancelDialog"
        actionText: qsTr("Cancel Booking")
        title: root.detail.cancelTitle
        message: root.detail.cancelMessage
        onConfirmed: root.detail.cancel()
        onClosed: root.confirmCancel = false
    }
}
