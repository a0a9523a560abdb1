import QtQuick

// The sign-in panel where a screen may need it, made only while `active`, so that no
// sign-in flow lives on behind what is shown.
Loader {
    sourceComponent: Component {
        SignInPanel {}
    }
}
