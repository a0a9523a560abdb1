import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.App
import Quorvane.Components

// The window's toolbar: the sidebar toggle, the subtitle, and Quick Share, the command
// palette and Refresh at the right. Their keys belong to the menus; these buttons run the
// same commands.
ToolBar {
    id: root

    property string subtitle
    property bool sidebarVisible: true
    // The screen on show when it takes a search (it has `searchPrompt` and `query`), or null.
    property Item searchScreen: null

    readonly property Command shareCommand: Commands.get(CommandId.ShareTimes)
    readonly property Command paletteCommand: Commands.get(CommandId.CommandPalette)
    readonly property Command refreshCommand: Commands.get(CommandId.Refresh)

    signal toggleSidebar()

    function focusSearch() {
        if (!searchSlot.item)
            return
        searchSlot.item.forceActiveFocus()
        searchSlot.item.selectAll()
    }

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: Style.spaceS
        anchors.rightMargin: Style.spaceS
        spacing: Style.spaceXXS

        SymbolButton {
            objectName: "sidebarToggle"
            symbol: "sidebar.left"
            onClicked: root.toggleSidebar()
            Accessible.name: root.sidebarVisible ? qsTr("Hide Sidebar") : qsTr("Show Sidebar")
            ToolTip.visible: hovered
            ToolTip.delay: 600
            ToolTip.text: Accessible.name
        }
        Item {
            Layout.fillWidth: true
        }
        Label {
            objectName: "subtitle"
            Layout.rightMargin: Style.spaceL
            visible: text.length > 0 // nothing for a screen reader to land on
            text: root.subtitle
            textFormat: Text.PlainText
            font.pixelSize: Typography.caption
            color: Style.secondary
        }
        // Made when a screen that takes a search first shows, and kept from then on; a file of
        // its own, so that it is compiled only then.
        Loader {
            id: searchSlot
            Layout.preferredWidth: 220
            Layout.rightMargin: Style.spaceM
            active: root.searchScreen !== null || item !== null
            visible: root.searchScreen !== null
            source: "SearchField.qml"
        }
        Binding {
            target: searchSlot.item
            property: "screen"
            value: root.searchScreen
            when: searchSlot.item !== null
        }
        SymbolButton {
            objectName: "quickShareButton"
            symbol: root.shareCommand.symbol
            text: qsTr("Quick Share")
            display: AbstractButton.IconOnly
            onClicked: root.shareCommand.trigger()
            ToolTip.visible: hovered
            ToolTip.delay: 600
            ToolTip.text: qsTr("Share a few open times (%1 anywhere)").arg(Commands.shareHotKeyText)
        }
        SymbolButton {
            objectName: "paletteButton"
            symbol: root.paletteCommand.symbol
            text: qsTr("Command Palette")
            display: AbstractButton.IconOnly
            onClicked: root.paletteCommand.trigger()
            ToolTip.visible: hovered
            ToolTip.delay: 600
            ToolTip.text: qsTr("Command palette (%1)").arg(root.paletteCommand.shortcutText)
        }
        SymbolButton {
            id: refreshButton
            objectName: "refreshButton"
            symbol: root.refreshCommand.symbol
            text: root.refreshCommand.title
            display: AbstractButton.IconOnly
            onClicked: root.refreshCommand.trigger()
            ToolTip.visible: hovered
            ToolTip.delay: 600
            ToolTip.text: qsTr("Refresh (%1)").arg(root.refreshCommand.shortcutText)

            Loader {
                anchors.centerIn: parent
                active: App.loading
                source: "RefreshSpinner.qml"
            }
            // The spinner stands in for the symbol while a refresh runs.
            icon.source: App.loading ? "" : Style.icon("arrow.clockwise", palette.buttonText)
        }
    }
}
