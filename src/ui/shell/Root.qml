import QtQuick
import Quorvane.App
import Quorvane.Main

// The application's windows, by id: "main" opens at launch; "share", "onboarding", "about"
// and "settings" are made the first time they are asked for and kept afterwards. Closing a
// window only hides it; the app goes on in the tray.
QtObject {
    id: root

    property MainWindow mainWindow: MainWindow {
        objectName: "main"
        visible: true
        // Each time the main window's content appears: start the model, and bring up the
        // welcome guide until it has been finished once.
        onVisibleChanged: {
            if (visible)
                root.bootstrap()
        }
    }

    property ShareWindow shareWindow
    property OnboardingWindow onboardingWindow
    property AboutWindow aboutWindow
    property SettingsWindow settingsWindow

    readonly property Component shareComponent: Component { ShareWindow {} }
    readonly property Component onboardingComponent: Component { OnboardingWindow {} }
    readonly property Component aboutComponent: Component { AboutWindow {} }
    readonly property Component settingsComponent: Component { SettingsWindow {} }

    function bootstrap() {
        App.start()
        if (!App.onboarded)
            open("onboarding")
    }

    // The window with that id, made on first use; null for an id that names no window.
    function windowFor(windowId: string): Window {
        switch (windowId) {
        case "main":
            return mainWindow
        case "share":
            if (!shareWindow)
                shareWindow = shareComponent.createObject(root) as ShareWindow
            return shareWindow
        case "onboarding":
            if (!onboardingWindow)
                onboardingWindow = onboardingComponent.createObject(root) as OnboardingWindow
            return onboardingWindow
        case "about":
            if (!aboutWindow)
                aboutWindow = aboutComponent.createObject(root) as AboutWindow
            return aboutWindow
        case "settings":
            if (!settingsWindow)
                settingsWindow = settingsComponent.createObject(root) as SettingsWindow
            return settingsWindow
        }
        return null
    }

    function open(windowId: string) {
        const window = windowFor(windowId)
        if (!window)
            return
        if (window.visibility === Window.Minimized)
            window.showNormal()
        else
            window.show()
        window.raise()
        window.requestActivate()
    }

    property Connections shellRequests: Connections {
        target: Shell
        function onOpenRequested(windowId: string) {
            root.open(windowId)
        }
    }
}
