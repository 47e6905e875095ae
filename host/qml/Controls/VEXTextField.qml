import QtQuick 2.15
import QtQuick.Templates 2.15 as T

/*! A field to type in; it brings its place-holder, and no frame. */
T.TextField {
    id: root

    /*! Whether the cursor is 1 wide and 15 high, instead of as high as the line. */
    property bool isCostomCursor: false

    implicitWidth: 130
    implicitHeight: 32
    leftPadding: 4
    rightPadding: 4
    verticalAlignment: Text.AlignVCenter
    font.pixelSize: 13
    color: VexThemeMgr.curTheme.font_color_grade1
    placeholderTextColor: VexThemeMgr.curTheme.font_color_disabled
    selectByMouse: true
    selectionColor: VexThemeMgr.curTheme.font_color_grade3
    selectedTextColor: "#FFFFFF"
    Accessible.role: Accessible.EditableText

    cursorDelegate: VEXTextCursor {
        field: root
        shownHeight: root.isCostomCursor ? 15 : 0
    }

    Text {
        x: root.leftPadding
        width: root.availableWidth
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
