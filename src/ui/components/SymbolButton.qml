import QtQuick
import QtQuick.Controls

// A tool button that shows a symbol from the bundled set, tinted like its text.
ToolButton {
    id: root

    property string symbol
    property color tint: palette.buttonText
    property int symbolSize: 16

    icon.source: symbol.length > 0 ? "image://icon/" + symbol + "?color=" + tint.toString().substring(1) : ""
    icon.width: symbolSize
    icon.height: symbolSize
    icon.color: "transparent" // the provider has drawn the colour already
}
