import QtQuick
import Quorvane.App

// "About Quorvane": version, links and the maker.
FixedSizeWindow {
    objectName: "about"
    title: qsTr("About Quorvane")
    windowId: AppWindow.About
    placeholderTitle: qsTr("Quorvane")
    placeholderSymbol: "info.circle"
    placeholderDescription: qsTr("About isn't available in this version yet.")
}
