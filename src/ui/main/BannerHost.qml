import QtQuick
import Quorvane.App
import Quorvane.Components

// The model's banner above the content: it slides down from the top edge and fades in, and
// goes the same way. While it leaves it keeps its last words instead of going blank.
Item {
    id: host

    readonly property bool shown: App.hasBanner

    implicitHeight: shown ? banner.implicitHeight + 14 : 0
    clip: true

    Behavior on implicitHeight {
        NumberAnimation { duration: 180; easing.type: Easing.OutCubic }
    }

    BannerView {
        id: banner
        objectName: "banner"
        x: 14
        width: host.width - 28
        y: host.shown ? 14 : -height
        opacity: host.shown ? 1 : 0
        enabled: host.shown
        visible: opacity > 0
        onRetry: App.refreshNow()
        onDismiss: App.dismissBanner()

        Behavior on y {
            NumberAnimation { duration: 180; easing.type: Easing.OutCubic }
        }
        Behavior on opacity {
            NumberAnimation { duration: 180 }
        }
    }

    Binding {
        target: banner
        property: "message"
        value: App.bannerMessage
        when: App.hasBanner
        restoreMode: Binding.RestoreNone
    }
    Binding {
        target: banner
        property: "kind"
        value: App.bannerKind
        when: App.hasBanner
        restoreMode: Binding.RestoreNone
    }
    Binding {
        target: banner
        property: "showRetry"
        value: App.bannerRetry
        when: App.hasBanner
        restoreMode: Binding.RestoreNone
    }
}
