import QtQuick
import Quorvane.Components

// Where a window shows a view that another module provides: the view once that module is
// part of the app, else a panel saying what will be here. The window takes its size from it.
Item {
    id: hook

    // For example "qrc:/qt/qml/Quorvane/Onboarding/OnboardingView.qml".
    required property url source
    property string title
    property string symbol
    property string description
    property size placeholderSize: Qt.size(480, 360)

    // Made once; a missing file only leaves the component in its error state.
    readonly property Component view: Qt.createComponent(source, Component.PreferSynchronous)
    readonly property bool provided: view !== null && view.status === Component.Ready
    readonly property Item content: loader.item

    implicitWidth: provided && loader.item ? loader.item.implicitWidth : placeholderSize.width
    implicitHeight: provided && loader.item ? loader.item.implicitHeight : placeholderSize.height

    Loader {
        id: loader
        anchors.fill: parent
        sourceComponent: hook.provided ? hook.view : placeholder
    }

    Component {
        id: placeholder
        EmptyPanel {
            objectName: "placeholder"
            title: hook.title
            symbol: hook.symbol
            description: hook.description
        }
    }
}
