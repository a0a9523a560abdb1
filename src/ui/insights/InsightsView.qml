pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.App
import Quorvane.Components

// Statistics of the host's bookings: four tiles, the weeks, the popular times and the event
// types.
ScrollView {
    id: root

    contentWidth: availableWidth

    InsightsViewModel {
        id: figures
        objectName: "insightsFigures"
        app: App
    }

    Item {
        width: root.availableWidth
        implicitHeight: column.implicitHeight + 2 * Style.space4XL

        ColumnLayout {
            id: column
            x: Style.space4XL
            y: Style.space4XL
            width: parent.width - 2 * Style.space4XL
            spacing: Style.spaceXXL + Style.spaceXXS

            SkeletonList {
                objectName: "insightsSkeleton"
                Layout.fillWidth: true
                visible: !App.firstLoadDone
                rows: 5
            }
            EmptyPanel {
                objectName: "insightsEmpty"
                Layout.fillWidth: true
                Layout.preferredHeight: 400
                visible: App.firstLoadDone && !figures.hasData
                title: qsTr("No data yet")
                symbol: "chart.xyaxis.line"
                description: qsTr("Insights appear after your first bookings.")
            }

            RowLayout {
                objectName: "insightsTiles"
                Layout.fillWidth: true
                visible: App.firstLoadDone && figures.hasData
                spacing: Style.spaceXL
                StatTile {
                    Layout.fillWidth: true
                    Layout.preferredWidth: 1
                    title: qsTr("Bookings (6 mo)")
                    value: figures.total
                    symbol: "calendar"
                    tint: Style.blue
                }
                StatTile {
                    Layout.fillWidth: true
                    Layout.preferredWidth: 1
                    title: qsTr("Upcoming")
                    value: figures.upcoming
                    symbol: "arrow.forward.circle"
                    tint: Style.green
                }
                StatTile {
                    objectName: "cancelRateTile"
                    Layout.fillWidth: true
                    Layout.preferredWidth: 1
                    title: qsTr("Cancel rate")
                    value: figures.cancelRate
                    symbol: "xmark.circle"
                    tint: Style.orange
                }
                StatTile {
                    objectName: "noShowRateTile"
                    Layout.fillWidth: true
                    Layout.preferredWidth: 1
                    title: qsTr("No-show rate")
                    value: figures.noShowRate
                    symbol: "person.fill.questionmark"
                    tint: Style.red
                }
            }

            ChartCard {
                objectName: "weeksCard"
                Layout.fillWidth: true
                visible: App.firstLoadDone && figures.hasData
                heading: qsTr("Bookings per week")
                WeeksChart {
                    Layout.fillWidth: true
                    Layout.preferredHeight: 200
                    weeks: figures.weeks
                }
            }

            RowLayout {
                Layout.fillWidth: true
                visible: App.firstLoadDone && figures.hasData
                spacing: Style.spaceXXL + Style.spaceXXS
                ChartCard {
                    objectName: "popularCard"
                    Layout.fillWidth: true
                    Layout.alignment: Qt.AlignTop
                    heading: qsTr("Popular times")
                    Heatmap {
                        Layout.fillWidth: true
                        figures: figures
                    }
                }
                ChartCard {
                    objectName: "typesCard"
                    Layout.preferredWidth: 260
                    Layout.alignment: Qt.AlignTop
                    heading: qsTr("By event type")
                    TypeRing {
                        Layout.fillWidth: true
                        types: figures.types
                    }
                }
            }

            Label {
                Layout.fillWidth: true
                visible: App.firstLoadDone && figures.hasData
                text: qsTr("No-shows come from meetings you mark as no-show (right-click a past booking).")
                wrapMode: Text.WordWrap
                font.pixelSize: Typography.caption
                color: Style.secondary
            }
        }
    }
}
