import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import "."

/*! One tag of the tag bar, underlined. */
T.TabButton {
    id: root

    required property string tag
    required property bool selected

    implicitWidth: Math.ceil(implicitContentWidth)
    checkable: false
    text: ToolFun.tr(root.tag === "socialvideo" ? "socialVideo" : root.tag)
    hoverEnabled: true
    focusPolicy: root.selected || root.activeFocus ? Qt.TabFocus : Qt.NoFocus
    Accessible.role: Accessible.PageTab
    Accessible.name: root.text
    Accessible.selectable: true
    Accessible.selected: root.selected

    contentItem: Text {
        text: root.text
        textFormat: Text.PlainText
        elide: Text.ElideRight
        verticalAlignment: Text.AlignVCenter
        font.pixelSize: ScreenStyle.mediumText
        color: root.selected ? VexThemeMgr.curTheme.font_color_grade3 : ScreenStyle.text
    }

    background: Item {
        Rectangle {
            anchors.bottom: parent.bottom
            width: parent.width
            height: 4
            color: root.selected ? VexThemeMgr.curTheme.font_color_grade3
                                 : root.hovered ? "#808372FF" : "#F5F2FF"
        }

        FocusRing {
            anchors {
                fill: parent
                margins: 8
                leftMargin: -6
                rightMargin: -6
            }
            visible: root.visualFocus
        }
    }
}
