import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Public 1.0

/*! The window's pages, one of them shown. */
Row {
    id: root

    required property var captions
    property int current: 0

    function step(index) {
        const tab = tabs.itemAt(index)
        if (tab) {
            root.current = index
            tab.forceActiveFocus(Qt.TabFocusReason)
        }
    }

    spacing: 8
    Accessible.role: Accessible.PageTabList

    Repeater {
        id: tabs

        model: root.captions

        T.AbstractButton {
            id: tab

            required property string modelData
            required property int index
            readonly property bool isCurrent: root.current === tab.index

            implicitWidth: caption.implicitWidth + 32
            implicitHeight: 34
            hoverEnabled: true
            focusPolicy: tab.isCurrent || tab.activeFocus ? Qt.StrongFocus : Qt.ClickFocus
            text: tab.modelData
            Accessible.role: Accessible.PageTab
            Accessible.name: tab.text
            Accessible.selected: tab.isCurrent
            onClicked: root.current = tab.index
            Keys.onLeftPressed: root.step(tab.index - 1)
            Keys.onRightPressed: root.step(tab.index + 1)

            contentItem: Text {
                id: caption

                text: tab.text
                textFormat: Text.PlainText
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                font.pixelSize: 14
                font.weight: Font.DemiBold
                color: tab.isCurrent ? VexThemeMgr.curTheme.font_color_grade3
                                     : VexThemeMgr.curTheme.font_color_grade2
            }

            background: Rectangle {
                radius: 17
                color: tab.isCurrent ? VexThemeMgr.curTheme.accentPale
                                     : tab.hovered ? VexThemeMgr.curTheme.hover : "transparent"

                VEXFocusFrame {
                    radius: 20
                    visible: tab.visualFocus
                }
            }
        }
    }
}
