import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.App
import Quorvane.Components
import Quorvane.About

// The settings window: six tabs, each pane a form whose every change takes effect at once.
Item {
    id: root

    // The tab showing, 0 for "General".
    property alias currentIndex: tabs.currentIndex

    implicitWidth: 520
    implicitHeight: 400

    // Turns to the pane the shell was asked for, such as "updates" from Check for Updates.
    function turnTo(pane: string) {
        for (let i = 0; i < tabs.count; ++i) {
            if (tabs.itemAt(i).objectName === "tab." + pane)
                tabs.currentIndex = i
        }
    }
    Component.onCompleted: turnTo(Shell.settingsPane)
    Connections {
        target: Shell
        function onSettingsPaneRequested() { root.turnTo(Shell.settingsPane) }
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        TabBar {
            id: tabs
            objectName: "settingsTabs"
            Layout.fillWidth: true

            Repeater {
                model: [
                    { name: "general", title: qsTr("General"), symbol: "gearshape" },
                    { name: "account", title: qsTr("Account"), symbol: "person.crop.circle" },
                    { name: "calendar", title: qsTr("Calendar"), symbol: "calendar" },
                    { name: "notifications", title: qsTr("Notifications"), symbol: "bell.badge" },
                    { name: "updates", title: qsTr("Updates"), symbol: "arrow.down.circle" },
                    { name: "about", title: qsTr("About"), symbol: "info.circle" }
                ]
                TabButton {
                    required property var modelData
                    objectName: "tab." + modelData.name
                    text: modelData.title
                    icon.source: Style.icon(modelData.symbol, palette.buttonText)
                    icon.color: "transparent"
                    icon.width: 16
                    icon.height: 16
                    display: AbstractButton.TextUnderIcon
                    // The style tells the chosen tab by a shade too faint on a dark window.
                    palette.button: Style.dark && checked ? Qt.lighter(tabs.palette.button, 1.5) : tabs.palette.button
                    Accessible.name: modelData.title
                }
            }
        }

        StackLayout {
            Layout.fillWidth: true
            Layout.fillHeight: true
            currentIndex: tabs.currentIndex

            GeneralSettings {}
            AccountSettings {}
            CalendarSettings {}
            NotificationSettings {}
            UpdateSettings {}
            ScrollView {
                objectName: "aboutPane"
                contentWidth: availableWidth
                AboutView {
                    width: parent.width
                }
            }
        }
    }

    Shortcut {
        sequences: ["Ctrl+Tab"]
        onActivated: tabs.currentIndex = (tabs.currentIndex + 1) % tabs.count
    }
    Shortcut {
        sequences: ["Ctrl+Shift+Tab", "Ctrl+Backtab"]
        onActivated: tabs.currentIndex = (tabs.currentIndex + tabs.count - 1) % tabs.count
    }
}
