pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.App
import Quorvane.Components

// Working hours and focus blocks on one week grid, hours typed as a sentence, and the
// booking rules. Everything edits the draft at once; the model saves after a pause.
Item {
    id: root

    AvailabilityViewModel {
        id: view
        objectName: "availabilityModel"
        app: App
    }

    SkeletonList {
        objectName: "availabilitySkeleton"
        anchors.fill: parent
        anchors.margins: Style.space4XL
        visible: view.state === AvailabilityViewModel.Loading
        rows: 5
    }

    EmptyPanel {
        objectName: "availabilitySignedOut"
        anchors.fill: parent
        visible: view.state === AvailabilityViewModel.SignedOut
        title: qsTr("Not signed in")
        symbol: "clock.badge.questionmark"
    }

    ScrollView {
        id: scroll
        objectName: "availabilityEditor"
        anchors.fill: parent
        visible: view.state === AvailabilityViewModel.Editor
        contentWidth: availableWidth

        ColumnLayout {
            width: scroll.availableWidth - 40
            x: 20
            y: 20
            spacing: 16

            RowLayout {
                Layout.fillWidth: true
                spacing: Style.spaceL
                Icon {
                    name: "wand.and.stars"
                    color: Style.purple
                }
                TextField {
                    id: sentence
                    objectName: "sentenceField"
                    Layout.fillWidth: true
                    placeholderText: qsTr("Describe your hours, e.g. “weekdays 9-5, fri 9am-1pm”")
                    Accessible.name: qsTr("Describe your hours")
                    text: view.nl
                    onTextEdited: view.nl = text
                    onAccepted: view.apply()
                    Keys.onEnterPressed: view.apply()
                }
                Button {
                    objectName: "applyButton"
                    text: qsTr("Apply")
                    enabled: view.preview.length > 0
                    onClicked: view.apply()
                    ToolTip.visible: hovered
                    ToolTip.delay: 600
                    ToolTip.text: qsTr("Apply (Ctrl+Return)")
                }
                Shortcut {
                    sequences: ["Ctrl+Return", "Ctrl+Enter"]
                    enabled: root.visible && view.preview.length > 0
                    onActivated: view.apply()
                }
            }

            Label {
                objectName: "sentencePreview"
                Layout.fillWidth: true
                Layout.preferredHeight: view.preview.length > 0 ? implicitHeight : 0
                text: view.preview
                textFormat: Text.PlainText
                wrapMode: Text.WordWrap
                color: Style.secondary
                font.pixelSize: Typography.caption
                opacity: view.preview.length > 0 ? 1 : 0
                Behavior on opacity {
                    NumberAnimation { duration: Motion.springDuration(0.5, 0.85); easing: Motion.spring(0.5, 0.85) }
                }
            }

            RowLayout {
                Layout.fillWidth: true
                spacing: Style.spaceL
                SegmentedControl {
                    objectName: "modeChoice"
                    Layout.preferredWidth: 280
                    label: qsTr("Edit")
                    titles: view.modeTitles
                    currentIndex: view.mode
                    onActivated: index => view.mode = index
                }
                Item {
                    Layout.fillWidth: true
                }
                Label {
                    objectName: "availabilityHeader"
                    text: view.header
                    color: Style.secondary
                    font.pixelSize: Typography.callout
                }
                BusyIndicator {
                    objectName: "savingSpinner"
                    visible: App.saving
                    running: visible
                    Layout.preferredWidth: 16
                    Layout.preferredHeight: 16
                    Accessible.name: qsTr("Saving")
                }
            }

            Label {
                Layout.fillWidth: true
                text: view.hint
                wrapMode: Text.WordWrap
                color: Style.secondary
                font.pixelSize: Typography.caption
            }

            WeekGrid {
                objectName: "weekGrid"
                Layout.fillWidth: true
                Layout.preferredHeight: implicitHeight
                view: view
            }

            RowLayout {
                Layout.fillWidth: true
                spacing: Style.spaceS
                Label {
                    text: qsTr("In words:")
                    color: Style.secondary
                    font.pixelSize: Typography.caption
                }
                SelectableText {
                    objectName: "weekDescription"
                    Layout.fillWidth: true
                    text: view.description
                    font.pixelSize: Typography.caption
                    Accessible.name: qsTr("Your week in words: %1").arg(view.description)
                }
            }

            RulesForm {
                Layout.fillWidth: true
            }
        }
    }
}
