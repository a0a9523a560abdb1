import QtQuick
import Quorvane.App
import Quorvane.Components

// Where a window shows the view that the view table names for it, or, for a window whose
// view isn't written yet, a panel saying what will be here. The window takes its size from it.
Item {
    id: hook

    // The window this fills, such as AppWindow.Onboarding.
    required property int windowId
    property string title
    property string symbol
    property string description
    property size placeholderSize: Qt.size(480, 360)

    readonly property Component view: Shell.windowContent(windowId, hook)
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

    // A view that the table names but that doesn't compile is a fault, not a placeholder.
    Component.onCompleted: {
        if (view !== null && view.status === Component.Error)
            console.error(view.errorString())
    }
}
