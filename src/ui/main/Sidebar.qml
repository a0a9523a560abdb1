pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.App
import Quorvane.Components

// The six sections with their badges, the host's share links, and the account footer.
// The selection is the model's section: nothing here can leave it empty.
Rectangle {
    id: root

    required property MainWindowModel frame

    color: palette.window

    SectionListModel {
        id: sections
        app: App
    }
    TypeLinksModel {
        id: shareLinks
        app: App
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        ScrollView {
            id: scroller
            Layout.fillWidth: true
            Layout.fillHeight: true
            contentWidth: availableWidth

            ColumnLayout {
                id: list
                width: scroller.availableWidth
                spacing: Style.spaceXXS
                focus: true
                Accessible.role: Accessible.List
                Accessible.name: qsTr("Sections")

                Keys.onUpPressed: root.step(-1)
                Keys.onDownPressed: root.step(1)

                Item { implicitHeight: 8 }
                Repeater {
                    model: sections
                    SectionRow {
                        Layout.fillWidth: true
                        Layout.leftMargin: Style.spaceM
                        Layout.rightMargin: Style.spaceM
                        onActivated: section => {
                            App.section = section
                            list.forceActiveFocus() // the arrow keys walk on from here
                        }
                    }
                }

                Label {
                    objectName: "shareLinksHeading"
                    visible: shareLinks.count > 0
                    Layout.topMargin: Style.spaceXXL
                    Layout.leftMargin: 2 * Style.spaceM // in line with the rows' symbols: their margin and padding
                    Layout.bottomMargin: Style.spaceXXS
                    text: qsTr("Share links")
                    font.pixelSize: Typography.caption
                    font.bold: true
                    color: Style.secondary
                    Accessible.role: Accessible.Heading
                }
                Repeater {
                    objectName: "shareLinkRows"
                    model: shareLinks
                    ShareLinkRow {
                        Layout.fillWidth: true
                        Layout.leftMargin: Style.spaceM
                        Layout.rightMargin: Style.spaceM
                        onCopy: row => shareLinks.copyLink(row)
                    }
                }
                Item { implicitHeight: 8 }
            }
        }

        AccountFooter {
            objectName: "accountFooter"
            Layout.fillWidth: true
            Layout.margins: Style.spaceL
            frame: root.frame
        }
    }

    function step(by: int) {
        const next = sections.idAt(sections.indexOf(App.section) + by)
        if (next.length > 0)
            App.section = next
    }
}
