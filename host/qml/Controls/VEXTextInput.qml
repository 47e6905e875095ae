import QtQuick 2.15
import VexTheme 1.0

/*! A line to type in, without a frame of its own. */
TextInput {
    id: root

    readonly property ThemeColours theme: Theme.around(root)

    property bool isSearch: false
    /*! Whether the cursor has the size that follows, instead of the usual one. */
    property bool isCostomCursor: false
    property int cursorWidth: 1
    property int cursorHeight: 15

    selectByMouse: true
    selectionColor: root.theme.font_color_grade3
    selectedTextColor: root.theme.onAccent
    inputMethodHints: root.isSearch ? Qt.ImhNoPredictiveText | Qt.ImhNoAutoUppercase : Qt.ImhNone
    onActiveFocusChanged: {
        if (!root.activeFocus) {
            root.deselect()
        }
    }

    cursorDelegate: VEXTextCursor {
        visible: root.cursorVisible
        blinks: root.activeFocus
        shownWidth: root.isCostomCursor ? root.cursorWidth : 1
        shownHeight: root.isCostomCursor ? root.cursorHeight : 0
    }
}
