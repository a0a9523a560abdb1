import QtQuick

// Text from the server that the user may select and copy: always plain, never markup.
TextEdit {
    readOnly: true
    selectByMouse: true
    selectByKeyboard: true
    activeFocusOnPress: true
    textFormat: TextEdit.PlainText
    wrapMode: TextEdit.Wrap
    color: palette.text
    selectionColor: palette.highlight
    selectedTextColor: palette.highlightedText
    font.pixelSize: Typography.body
}
