import QtQuick

Rectangle {
    implicitHeight: 1
    color: palette.windowText
    opacity: 0.12
}
