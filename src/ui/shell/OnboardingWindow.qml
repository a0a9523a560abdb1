import QtQuick
import Quorvane.App

// "Welcome to Quorvane": the first-run guide, opened at start until it is finished.
FixedSizeWindow {
    objectName: "onboarding"
    title: qsTr("Welcome to Quorvane")
    windowId: AppWindow.Onboarding
    placeholderTitle: qsTr("Welcome to Quorvane")
    placeholderSymbol: "sparkles"
    placeholderDescription: qsTr("The welcome guide isn't available in this version yet.")
}
