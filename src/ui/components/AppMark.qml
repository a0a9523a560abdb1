import QtQuick

// The application's icon, from the same drawing the desktop entry installs.
Image {
    id: root

    property int size: 96

    width: size
    height: size
    sourceSize: Qt.size(size, size)
    source: "qrc:/qt/qml/Quorvane/Components/appicon.svg"
    Accessible.ignored: true
}
