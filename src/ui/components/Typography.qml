pragma Singleton
import QtQuick

// The text sizes every screen uses, in pixels, from the largest title down to the smallest
// caption, so that a "headline" or a "caption" means the same everywhere.
QtObject {
    readonly property int largeTitle: 26
    readonly property int title: 22
    readonly property int title2: 18
    readonly property int title3: 16
    readonly property int headline: 13 // with bold
    readonly property int body: 13
    readonly property int callout: 12
    readonly property int caption: 11
    readonly property int caption2: 10
}
