pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.App
import Quorvane.Components

// The times area: loading, the failure with Retry, no times, or the days of chips.
Item {
    id: area

    required property QuickShareModel share

    SkeletonList {
        objectName: "shareSkeleton"
        anchors.fill: parent
        visible: area.share.loading
        rows: 4
    }

    EmptyPanel {
        objectName: "shareError"
        anchors.fill: parent
        visible: !area.share.loading && area.share.hasError
        title: qsTr("Couldn't load times")
        symbol: "wifi.exclamationmark"
        description: area.share.error
        Button {
            objectName: "retryShare"
            text: qsTr("Retry")
            onClicked: area.share.load()
            Keys.onReturnPressed: area.share.load()
        }
    }

    EmptyPanel {
        objectName: "shareEmpty"
        anchors.fill: parent
        visible: !area.share.loading && !area.share.hasError && !area.share.hasSlots
        title: qsTr("No open times")
        symbol: "calendar.badge.exclamationmark"
        description: qsTr("Widen your availability or connect Google Calendar.")
    }

    ScrollView {
        id: scroller
        objectName: "shareDays"
        anchors.fill: parent
        visible: !area.share.loading && !area.share.hasError && area.share.hasSlots
        ScrollBar.vertical.policy: ScrollBar.AlwaysOn
        contentWidth: availableWidth

        Column {
            width: scroller.availableWidth - Style.spaceL
            spacing: Style.spaceL
            Repeater {
                model: area.share.days
                delegate: Column {
                    id: day
                    required property int index
                    required property string heading
                    required property var chips
                    width: parent.width
                    spacing: Style.spaceS
                    Label {
                        objectName: "dayHeading"
                        text: day.heading
                        font.pixelSize: Typography.caption
                        font.weight: Font.DemiBold
                        color: Style.secondary
                    }
                    FlowChips {
                        width: parent.width
                        chips: day.chips
                        onTap: chip => area.share.toggle(day.index, chip)
                    }
                }
            }
        }
    }
}
