import QtQuick 2.15
import Controls 1.0
import "."

/*! The preset's title. */
Row {
    id: root

    property alias text: field.text

    signal edited()
    /*! The field gained or lost the focus while it was empty. */
    signal foundEmpty()

    spacing: 12

    Text {
        width: 58
        height: 32
        text: ToolFun.tr("Title")
        textFormat: Text.PlainText
        elide: Text.ElideRight
        horizontalAlignment: Text.AlignRight
        verticalAlignment: Text.AlignVCenter
        color: ScreenStyle.text
        font.pixelSize: ScreenStyle.smallText
    }

    Rectangle {
        width: 526
        height: 32
        radius: 2
        border.width: 1
        border.color: field.activeFocus ? VexThemeMgr.curTheme.font_color_grade3
                                        : ScreenStyle.frame

        VEXTextInput {
            id: field

            anchors.fill: parent
            leftPadding: 10
            verticalAlignment: TextInput.AlignVCenter
            clip: true
            activeFocusOnTab: true
            isSearch: false
            isCostomCursor: true
            cursorWidth: 1
            cursorHeight: 15
            opacity: field.activeFocus ? 1 : 0.6
            color: ScreenStyle.text
            font.pixelSize: 13
            Accessible.role: Accessible.EditableText
            Accessible.name: ToolFun.tr("Title")
            onTextChanged: root.edited()
            onFocusChanged: {
                if (field.text === "") {
                    root.foundEmpty()
                }
            }
        }
    }
}
