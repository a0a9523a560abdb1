pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.App
import Quorvane.Components

// The first-run guide: four steps, then "Get Started" marks it done and closes its window.
// Closing the window any other way leaves it to show again at the next launch.
Item {
    id: root

    readonly property OnboardingModel guide: Setup.createOnboarding(root)

    implicitWidth: 540
    implicitHeight: 470

    // The window is kept when closed; each time it shows, the guide starts over. (The signal,
    // not a binding on `visible`: a window closed by its title bar may hide without telling.)
    Connections {
        target: root.Window.window
        function onVisibleChanged() {
            if (root.Window.window.visible)
                root.guide.appear()
        }
    }
    Component.onCompleted: {
        if (Window.window && Window.window.visible)
            guide.appear()
    }

    Connections {
        target: root.guide
        function onFinished() {
            if (root.Window.window)
                root.Window.window.close()
        }
    }

    Shortcut {
        sequences: ["Return", "Enter"]
        onActivated: root.guide.advance()
    }

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: Style.space5XL
        spacing: Style.space3XL

        // Each step fades in as the one before fades out.
        Item {
            id: stage
            Layout.fillWidth: true
            Layout.fillHeight: true

            WelcomeStep {
                anchors.fill: parent
                shown: root.guide.step === 0
            }
            SignInStep {
                anchors.fill: parent
                shown: root.guide.step === 1
            }
            AlertsStep {
                anchors.fill: parent
                shown: root.guide.step === 2
                guide: root.guide
            }
            DoneStep {
                anchors.fill: parent
                shown: root.guide.step === 3
                guide: root.guide
            }
        }

        RowLayout {
            Layout.fillWidth: true
            spacing: Style.spaceM

            StepDots {
                step: root.guide.step
                steps: root.guide.steps
                label: root.guide.stepLabel
            }
            Item {
                Layout.fillWidth: true
            }
            Button {
                objectName: "backButton"
                visible: root.guide.canGoBack
                text: qsTr("Back")
                onClicked: root.guide.back()
            }
            Button {
                objectName: "primaryButton"
                text: root.guide.primaryLabel
                highlighted: true
                onClicked: root.guide.advance()
            }
        }
    }
}
