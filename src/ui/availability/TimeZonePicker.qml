pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.App
import Quorvane.Components

// The host's time zone: a button with the zone's name that opens the system's zones, narrowed
// by typing. A stored zone the system doesn't know stays shown until another is picked.
Button {
    id: picker

    property string zone
    property string zoneName
    signal picked(string zone)

    text: zoneName.length > 0 ? zoneName : qsTr("Choose…")
    Accessible.name: qsTr("Time zone: %1").arg(text)
    onClicked: popup.open()

    TimeZoneListModel {
        id: zones
    }

    function pick(row: int) {
        const chosen = zones.zoneAt(row)
        if (chosen.length > 0)
            picked(chosen)
        popup.close()
    }

    Popup {
        id: popup
        objectName: "zonePopup"
        x: picker.width - width
        y: picker.height + Style.spaceXS
        width: 300
        height: 320
        padding: Style.spaceM
        focus: true
        onOpened: {
            search.text = ""
            list.currentIndex = zones.indexOf(picker.zone)
            list.positionViewAtIndex(Math.max(0, list.currentIndex), ListView.Center)
            search.forceActiveFocus()
        }

        ColumnLayout {
            anchors.fill: parent
            spacing: Style.spaceS
            TextField {
                id: search
                objectName: "zoneSearch"
                Layout.fillWidth: true
                placeholderText: qsTr("Search time zones")
                Accessible.name: qsTr("Search time zones")
                onTextChanged: {
                    zones.query = text
                    list.currentIndex = text.length > 0 ? 0 : zones.indexOf(picker.zone)
                }
                Keys.onDownPressed: list.currentIndex = Math.min(list.count - 1, list.currentIndex + 1)
                Keys.onUpPressed: list.currentIndex = Math.max(0, list.currentIndex - 1)
                onAccepted: picker.pick(list.currentIndex)
            }
            ListView {
                id: list
                objectName: "zoneList"
                Layout.fillWidth: true
                Layout.fillHeight: true
                clip: true
                model: zones
                highlightMoveDuration: 0
                ScrollBar.vertical: ScrollBar {}
                delegate: ItemDelegate {
                    required property int index
                    required property string name
                    width: ListView.view.width
                    text: name
                    highlighted: ListView.isCurrentItem
                    onClicked: picker.pick(index)
                }
                Label {
                    anchors.centerIn: parent
                    visible: list.count === 0
                    text: qsTr("No matching time zone")
                    color: Style.secondary
                }
            }
        }
    }
}
