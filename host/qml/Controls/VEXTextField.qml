import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import VexTheme 1.0

/*! A field to type in; it brings its place-holder, and no frame. */
T.TextField {
    id: root

    readonly property ThemeColours theme: Theme.around(root)

    /*! Whether the cursor is 1 wide and 15 high, instead of as high as the line. */
    property bool isCostomCursor: false

    implicitWidth: 130
    implicitHeight: Theme.smallControlHeight
    leftPadding: 4
    rightPadding: 4
    verticalAlignment: Text.AlignVCenter
    font.pixelSize: Theme.text
    color: root.theme.font_color_grade1
    placeholderTextColor: root.theme.font_color_grade4
    selectByMouse: true
    selectionColor: root.theme.font_color_grade3
    selectedTextColor: root.theme.onAccent
    Accessible.role: Accessible.EditableText

    cursorDelegate: VEXTextCursor {
        visible: root.cursorVisible
        blinks: root.activeFocus
        shownHeight: root.isCostomCursor ? 15 : 0
    }

    Text {
        x: root.leftPadding
        width: root.width - root.leftPadding - root.rightPadding
        height: root.height
        visible: root.length === 0 && root.preeditText === ""
        text: root.placeholderText
        textFormat: Text.PlainText
        elide: Text.ElideRight
        verticalAlignment: root.verticalAlignment
        horizontalAlignment: root.horizontalAlignment
        font: root.font
        color: root.placeholderTextColor
    }
}
