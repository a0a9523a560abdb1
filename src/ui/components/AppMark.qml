import QtQuick

// The application's mark: a calendar with a clock on a rounded square in the brand colours.
Rectangle {
    id: root

    property int size: 96

    width: size
    height: size
    radius: size * 0.225
    gradient: Gradient {
        GradientStop { position: 0.0; color: "#3D9BFF" }
        GradientStop { position: 1.0; color: "#0A60D8" }
    }
    Accessible.ignored: true

    Icon {
        anchors.centerIn: parent
        name: "calendar.badge.clock"
        size: Math.round(root.size * 0.58)
        color: "white"
    }
}
