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
                spacing: 1
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
                        Layout.leftMargin: 8
                        Layout.rightMargin: 8
                        onActivated: section => {
                            App.section = section
                            list.forceActiveFocus() // the arrow keys walk on from here
                        }
                    }
                }

                Label {
                    objectName: "shareLinksHeading"
                    visible: shareLinks.count > 0
                    Layout.topMargin: 14
                    Layout.leftMargin: 16
                    Layout.bottomMargin: 2
                    text: qsTr("Share links")
                    font.pixelSize: Typography.caption
                    font.bold: true
                    color: SystemColors.secondary
                    Accessible.role: Accessible.Heading
                }
                Repeater {
                    objectName: "shareLinkRows"
                    model: shareLinks
                    ShareLinkRow {
                        Layout.fillWidth: true
                        Layout.leftMargin: 8
                        Layout.rightMargin: 8
                        onCopy: row => shareLinks.copyLink(row)
                    }
                }
                Item { implicitHeight: 8 }
            }
        }

        AccountFooter {
            objectName: "accountFooter"
            Layout.fillWidth: true
            Layout.margins: 10
            frame: root.frame
        }
    }

    function step(by: int) {
        const next = sections.idAt(sections.indexOf(App.section) + by)
        if (next.length > 0)
            App.section = next
    }
}
