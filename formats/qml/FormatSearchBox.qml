import QtQuick 2.15
import QtQuick.Controls 2.5
import Controls 1.0
import "."

/*! The search field with its icon and, while there is text, a button that clears it. */
Rectangle {
    id: root

    property alias text: field.text
    readonly property bool editing: field.activeFocus

    function type(text) {
        field.text += text
        field.forceActiveFocus(Qt.ShortcutFocusReason)
    }

    width: 190
    height: 32
    radius: VexThemeMgr.curTheme.radius_1
    color: root.editing ? VexThemeMgr.curTheme.basics_gradeTone1
                        : VexThemeMgr.curTheme.basics_gradeTone7
    border.width: 1
    border.color: root.editing ? VexThemeMgr.curTheme.font_color_grade3 : ScreenStyle.frame

    Row {
        anchors.verticalCenter: parent.verticalCenter
        x: 6
        spacing: 2

        AbstractButton {
            width: 24
            height: 24
            anchors.verticalCenter: parent.verticalCenter
            focusPolicy: Qt.NoFocus
            Accessible.role: Accessible.Button
            Accessible.name: ToolFun.tr("Format search")
            onClicked: field.forceActiveFocus(Qt.MouseFocusReason)

            contentItem: Image {
                source: "qrc:/formats/image/bx-search_false.svg"
                sourceSize: Qt.size(24, 24)
            }
        }

        VEXTextField {
            id: field

            width: 130
            height: 32
            activeFocusOnTab: true
            isCostomCursor: true
            maximumLength: 15
            placeholderText: ToolFun.tr("Format search")
            placeholderTextColor: "#CFCFCF"
            color: VexThemeMgr.curTheme.font_color_grade2
            font.pixelSize: ScreenStyle.mediumText
            Accessible.role: Accessible.EditableText
            Accessible.name: placeholderText
        }

        AbstractButton {
            width: 16
            height: 16
            anchors.verticalCenter: parent.verticalCenter
            visible: field.text !== ""
            focusPolicy: Qt.NoFocus
            Accessible.role: Accessible.Button
            Accessible.name: ToolFun.tr("Clear")
            onClicked: {
                field.text = ""
                field.forceActiveFocus(Qt.MouseFocusReason)
            }

            contentItem: Image {
                source: "qrc:/formats/image/search_delete.png"
            }
        }
    }
}
