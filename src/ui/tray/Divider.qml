import QtQuick
import Quorvane.Components

Rectangle {
    implicitHeight: 1
    color: Style.rule(palette.windowText)
}
