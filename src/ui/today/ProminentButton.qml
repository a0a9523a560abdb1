import QtQuick
import QtQuick.Controls
import Quorvane.App

// The one action a card leads to, filled with the accent colour.
Button {
    id: root

    property string symbol

    palette.button: SystemColors.accent
    palette.buttonText: "white"
    font.weight: Font.DemiBold
    icon.source: symbol.length > 0 ? "image://icon/" + symbol + "?color=ffffff" : ""
    icon.width: 14
    icon.height: 14
    icon.color: "transparent" // drawn white by the provider
}
