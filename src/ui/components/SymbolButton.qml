import QtQuick
import QtQuick.Controls

// A tool button that shows a symbol from the bundled set, tinted like its text.
ToolButton {
    id: root

    property string symbol
    property color tint: palette.buttonText
    property int symbolSize: 16

    icon.source: Style.icon(symbol, tint)
    icon.width: symbolSize
    icon.height: symbolSize
    icon.color: "transparent" // the provider has drawn the colour already
}
