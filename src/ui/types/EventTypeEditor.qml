pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quorvane.App
import Quorvane.Components

// The selected type's settings in five groups. The editor works on a copy of the type taken
// when it is made, and each change goes into the draft at once; there is no save button.
ScrollView {
    id: root
    objectName: "typeEditor"

    property alias typeId: editor.typeId

    contentWidth: availableWidth
    padding: Style.space4XL

    EventTypeEditorModel {
        id: editor
        objectName: "editorModel"
        app: App
    }

    ColumnLayout {
        width: root.availableWidth
        spacing: Style.space3XL

        GeneralSection {
            Layout.fillWidth: true
            editor: editor
        }
        LinkSection {
            Layout.fillWidth: true
            editor: editor
        }
        DurationSection {
            Layout.fillWidth: true
            editor: editor
        }
        LocationSection {
            Layout.fillWidth: true
            editor: editor
        }
        QuestionsSection {
            Layout.fillWidth: true
            editor: editor
        }
    }
}
