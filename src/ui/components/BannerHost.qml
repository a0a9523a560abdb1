import QtQuick
import Quorvane.App

// A banner that slides down from the top edge and fades in while `shown`, and goes the same
// way, on the banner spring. While it leaves it keeps its last words instead of going blank.
Item {
    id: host

    property bool shown: App.hasBanner
    property int padding: Style.spaceXXL // above the banner and at both sides

    readonly property int springDuration: Motion.springDuration(0.5, 1.0)
    readonly property var springCurve: Motion.spring(0.5, 1.0)

    implicitHeight: shown ? banner.implicitHeight + padding : 0
    clip: true

    Behavior on implicitHeight {
        NumberAnimation { duration: host.springDuration; easing: host.springCurve }
    }

    BannerView {
        id: banner
        objectName: "banner"
        x: host.padding
        width: host.width - 2 * host.padding
        y: host.shown ? host.padding : -height
        opacity: host.shown ? 1 : 0
        enabled: host.shown
        visible: opacity > 0
        onRetry: App.refreshNow()
        onDismiss: App.dismissBanner()

        Behavior on y {
            NumberAnimation { duration: host.springDuration; easing: host.springCurve }
        }
        Behavior on opacity {
            NumberAnimation { duration: host.springDuration; easing: host.springCurve }
        }
    }

    Binding {
        target: banner
        property: "message"
        value: App.bannerMessage
        when: host.shown
        restoreMode: Binding.RestoreNone
    }
    Binding {
        target: banner
        property: "kind"
        value: App.bannerKind
        when: host.shown
        restoreMode: Binding.RestoreNone
    }
    Binding {
        target: banner
        property: "showRetry"
        value: App.bannerRetry
        when: host.shown
        restoreMode: Binding.RestoreNone
    }
}
