import QtQuick

// "About Quorvane": version, links and the maker.
FixedSizeWindow {
    objectName: "about"
    title: qsTr("About Quorvane")
    source: "qrc:/qt/qml/Quorvane/About/AboutView.qml"
    placeholderTitle: qsTr("Quorvane")
    placeholderSymbol: "info.circle"
    placeholderDescription: qsTr("About isn't available in this version yet.")
}
