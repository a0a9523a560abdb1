import QtQuick
import QtQuick.Controls

// The one action a card leads to, filled with the accent colour.
Button {
    id: root

    property string symbol

    palette.button: Style.accent
    palette.buttonText: Style.accentText
    font.weight: Font.DemiBold
    icon.source: Style.icon(symbol, Style.accentText)
    icon.width: 14
    icon.height: 14
    icon.color: "transparent" // the provider has drawn the colour already
}
