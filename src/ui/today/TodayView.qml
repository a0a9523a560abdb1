import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.App
import Quorvane.Components

// The first screen: the next meeting, three counters and the day's timeline.
ScrollView {
    id: root

    contentWidth: availableWidth

    TodayViewModel {
        id: today
        app: App
    }
    TimelineModel {
        id: timeline
        app: App
    }

    Item {
        width: root.availableWidth
        implicitHeight: (App.firstLoadDone ? stack.implicitHeight : skeleton.implicitHeight) + 2 * Style.space3XL

        // What is made only for a state the screen may never be in waits for that state.
        Loader {
            id: skeleton
            active: !App.firstLoadDone
            x: stack.x
            y: Style.space3XL
            width: stack.width
            sourceComponent: SkeletonList {
                objectName: "todaySkeleton"
                rows: 4
            }
        }

        ColumnLayout {
            id: stack
            visible: App.firstLoadDone
            width: Math.min(900, parent.width - 2 * Style.space3XL)
            x: (parent.width - width) / 2
            y: Style.space3XL
            spacing: Style.space3XL

            NextMeetingCard {
                objectName: "nextMeetingCard"
                Layout.fillWidth: true
                joinShortcutEnabled: false // the Go menu's "Join Next Meeting"
            }

            RowLayout {
                Layout.fillWidth: true
                spacing: Style.spaceXL
                StatTile {
                    objectName: "todayTile"
                    Layout.fillWidth: true
                    Layout.preferredWidth: 1
                    title: qsTr("Today")
                    value: today.todayCount
                    symbol: "sun.max"
                    tint: Style.orange
                }
                StatTile {
                    objectName: "weekTile"
                    Layout.fillWidth: true
                    Layout.preferredWidth: 1
                    title: qsTr("This week")
                    value: today.weekCount
                    symbol: "calendar"
                    tint: Style.blue
                }
                StatTile {
                    objectName: "pollsTile"
                    Layout.fillWidth: true
                    Layout.preferredWidth: 1
                    title: qsTr("Open polls")
                    value: today.openPollsCount
                    symbol: "chart.bar.doc.horizontal"
                    tint: Style.purple
                }
            }

            ColumnLayout {
                Layout.fillWidth: true
                spacing: Style.spaceL
                Label {
                    text: qsTr("Today's timeline")
                    font.pixelSize: Typography.headline
                    font.bold: true
                }
                TimelineList {
                    objectName: "timeline"
                    Layout.fillWidth: true
                    visible: timeline.count > 0
                    timeline: timeline
                }
                Loader {
                    Layout.fillWidth: true
                    Layout.preferredHeight: 170
                    active: timeline.count === 0
                    visible: active
                    sourceComponent: EmptyPanel {
                        objectName: "emptyDay"
                        title: qsTr("Nothing booked today")
                        symbol: "cup.and.saucer"
                        description: qsTr("Enjoy the focus time. Share a link to get booked.")
                    }
                }
            }

            Loader {
                Layout.fillWidth: true
                active: today.showsConnectCard
                visible: active
                sourceComponent: ConnectCalendarCard {
                    objectName: "connectCard"
                    onConnect: today.connectGoogle()
                }
            }
        }
    }
}
