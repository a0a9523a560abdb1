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

    // The banner itself is made the first time one is shown (most starts never show one),
    // and kept from then on.
    readonly property Item banner: slot.item
    // A banner there from the start is simply there; a later one slides in.
    property bool started: false
    Component.onCompleted: started = true

    implicitHeight: shown && banner ? banner.implicitHeight + padding : 0
    clip: true

    Behavior on implicitHeight {
        NumberAnimation { duration: host.springDuration; easing: host.springCurve }
    }

    Loader {
        id: slot
        active: host.shown || item !== null
        x: host.padding
        width: host.width - 2 * host.padding
        sourceComponent: BannerView {
            objectName: "banner"
            // Made hidden and then shown, so that a first banner slides in like the others.
            property bool shown: !host.started && host.shown
            Component.onCompleted: shown = Qt.binding(() => host.shown)
            width: parent.width
            y: shown ? host.padding : -height
            opacity: shown ? 1 : 0
            enabled: shown
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
    }

    Binding {
        target: host.banner
        property: "message"
        value: App.bannerMessage
        when: host.shown
        restoreMode: Binding.RestoreNone
    }
    Binding {
        target: host.banner
        property: "kind"
        value: App.bannerKind
        when: host.shown
        restoreMode: Binding.RestoreNone
    }
    Binding {
        target: host.banner
        property: "showRetry"
        value: App.bannerRetry
        when: host.shown
        restoreMode: Binding.RestoreNone
    }
}
