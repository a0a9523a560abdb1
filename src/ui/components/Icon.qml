import QtQuick

// A symbol from the bundled icon set, drawn in one colour. Decoration only: screens give the
// meaning in text or an accessible name.
Image {
    id: root

    property string name
    property color color: palette.windowText
    property int size: 16

    width: size
    height: size
    sourceSize: Qt.size(size, size)
    fillMode: Image.PreserveAspectFit
    source: Style.icon(name, root.color)
    Accessible.ignored: true
}
