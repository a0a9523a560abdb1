import QtQuick
import QtQuick.Controls
import Quorvane.Components

// The toolbar's search field, for the screen on show that takes a search (it has
// `searchPrompt` and `query`).
TextField {
    property Item screen: null

    objectName: "searchField"
    placeholderText: screen ? screen.searchPrompt : ""
    text: screen ? screen.query : ""
    leftPadding: Style.spaceXL + 14
    onTextEdited: screen.query = text
    Keys.onEscapePressed: {
        text = ""
        screen.query = ""
    }
    Accessible.name: placeholderText
    Accessible.role: Accessible.EditableText

    Icon {
        anchors.verticalCenter: parent.verticalCenter
        x: Style.spaceM
        name: "magnifyingglass"
        size: 14
        color: Style.secondary
    }
}
