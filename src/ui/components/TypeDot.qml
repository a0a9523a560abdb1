import QtQuick

// The coloured dot of an event type.
Rectangle {
    id: root

    property color color: Style.unknownType
    property int size: 10

    width: size
    height: size
    radius: size / 2
    gradient: Gradient {
        GradientStop { position: 0.0; color: Qt.lighter(root.color, 1.25) }
        GradientStop { position: 1.0; color: root.color }
    }
    Accessible.ignored: true
}
