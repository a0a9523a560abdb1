import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.Components

// A line of small print under a setting: grey by default, red for what went wrong.
Label {
    Layout.fillWidth: true
    textFormat: Text.PlainText
    wrapMode: Text.WordWrap
    font.pixelSize: Typography.caption
    color: Style.secondary
    visible: text.length > 0
}
