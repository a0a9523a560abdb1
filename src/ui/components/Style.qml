pragma Singleton
import QtQuick
import Quorvane.App

// The look every screen shares: the colours, one scale of spaces, one of corners, and the
// address of a tinted symbol. Screens take their numbers from here, so that two cards or two
// rows that should match do match.
QtObject {
    // The application's palette is dark (the desktop prefers it): every colour below follows,
    // open windows and all.
    readonly property bool dark: SystemColors.dark

    // The tints, from the one table in C++ (Tints), which the tray icon and the models use too.
    readonly property color accent: SystemColors.accent
    readonly property color red: SystemColors.red
    readonly property color orange: SystemColors.orange
    readonly property color yellow: SystemColors.yellow
    readonly property color green: SystemColors.green
    readonly property color blue: SystemColors.blue
    readonly property color purple: SystemColors.purple
    readonly property color pink: SystemColors.pink
    readonly property color secondary: SystemColors.secondary
    readonly property color unknownType: SystemColors.unknownType

    // Text and symbols on an accent fill, or on any other strong tint.
    readonly property color accentText: "white"
    // A row under the pointer, and a row being pressed.
    readonly property color hoverFill: dark ? Qt.rgba(1, 1, 1, 0.06) : Qt.rgba(0, 0, 0, 0.05)
    readonly property color pressFill: dark ? Qt.rgba(1, 1, 1, 0.11) : Qt.rgba(0, 0, 0, 0.09)
    // The ground of a count or a chip on the window.
    readonly property color quietFill: dark ? Qt.rgba(1, 1, 1, 0.10) : Qt.rgba(0, 0, 0, 0.07)
    // A panel that stands a little out of the window (the account footer), and its edge.
    readonly property color raisedFill: dark ? Qt.rgba(1, 1, 1, 0.06) : Qt.rgba(1, 1, 1, 0.55)
    readonly property color raisedEdge: dark ? Qt.rgba(1, 1, 1, 0.08) : Qt.rgba(0, 0, 0, 0.06)
    // What dims the window under a panel over it, and one step of that panel's shadow.
    readonly property color scrim: dark ? Qt.rgba(0, 0, 0, 0.45) : Qt.rgba(0, 0, 0, 0.18)
    readonly property color shadowStep: dark ? Qt.rgba(0, 0, 0, 0.12) : Qt.rgba(0, 0, 0, 0.035)

    // Lines, derived from the palette of whoever draws them (pass palette.window or
    // palette.windowText): a card's border, the rule between the window's columns, the edge of
    // a frameless window, and a thin line drawn over content. On a dark window a line is a
    // lighter shade of it.
    function hairline(window: color): color { return dark ? Qt.tint(window, "#1cffffff") : Qt.darker(window, 1.08) }
    function separator(window: color): color { return dark ? Qt.tint(window, "#28ffffff") : Qt.darker(window, 1.15) }
    function windowEdge(window: color): color { return dark ? Qt.tint(window, "#3cffffff") : Qt.darker(window, 1.25) }
    function rule(text: color): color { return withAlpha(text, 0.12) }

    function withAlpha(base: color, alpha: real): color { return Qt.rgba(base.r, base.g, base.b, alpha) }

    // Spaces between and around things, in pixels. Fixed sizes of a particular layout (a
    // column's width, a window's size) stay where they are.
    readonly property int spaceXXS: 2
    readonly property int spaceXS: 4
    readonly property int spaceS: 6
    readonly property int spaceM: 8
    readonly property int spaceL: 10
    readonly property int spaceXL: 12
    readonly property int spaceXXL: 14
    readonly property int space3XL: 18
    readonly property int space4XL: 24
    readonly property int space5XL: 32

    // Corners: bars, rows, banners, cards. A pill or a dot rounds by half its height.
    readonly property int radiusS: 4
    readonly property int radiusM: 6
    readonly property int radiusL: 10
    readonly property int radiusXL: 12
    readonly property int radiusXXL: 14

    // A symbol of the bundled set drawn in `tint` by the "icon" image provider; no symbol, no
    // image.
    function icon(symbol: string, tint: color): string {
        return symbol.length > 0 ? "image://icon/" + symbol + "?color=" + tint.toString().substring(1) : ""
    }
}
