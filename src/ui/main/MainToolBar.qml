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
        // Made when a screen that takes a search first shows, and kept from then on.
        Loader {
            id: searchSlot
            Layout.preferredWidth: 220
            Layout.rightMargin: Style.spaceM
            active: root.searchScreen !== null || item !== null
            visible: root.searchScreen !== null
            sourceComponent: TextField {
                objectName: "searchField"
                placeholderText: root.searchScreen ? root.searchScreen.searchPrompt : ""
                text: root.searchScreen ? root.searchScreen.query : ""
                leftPadding: Style.spaceXL + 14
                onTextEdited: root.searchScreen.query = text
                Keys.onEscapePressed: {
                    text = ""
                    root.searchScreen.query = ""
                }
                Accessible.name: placeholderText
                Accessible.role: Accessible.EditableText

                Icon {
                    anchors.verticalCenter: parent.verticalCenter
                    x: Style.spaceM
                    name: "magnifyingglass"
                    size: 14
                    color: Style.secondary
                }
            }
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

            BusyIndicator {
                objectName: "refreshBusy"
                anchors.centerIn: parent
                width: 18
                height: 18
                padding: 0
                // Spins only where it can be seen: a hidden window costs no CPU.
                running: App.loading && root.Window.window !== null && root.Window.window.visible
                visible: App.loading
            }
            // The spinner stands in for the symbol while a refresh runs.
            icon.source: App.loading ? "" : Style.icon("arrow.clockwise", palette.buttonText)
        }
    }
}
