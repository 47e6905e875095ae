import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Public 1.0
import VexTheme 1.0

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

    spacing: Theme.spacing
    Accessible.role: Accessible.PageTabList

    Repeater {
        id: tabs

        model: root.captions

        // Its role is the control's own: Controls give theirs to assistive tools whatever is set here.
        T.TabButton {
            id: tab

            required property string modelData
            required property int index
            readonly property bool isCurrent: root.current === tab.index

            implicitWidth: implicitContentWidth + leftPadding + rightPadding
            implicitHeight: 34
            leftPadding: Theme.margin
            rightPadding: Theme.margin
            checkable: false
            hoverEnabled: true
            focusPolicy: tab.isCurrent || tab.activeFocus ? Qt.StrongFocus : Qt.ClickFocus
            text: tab.modelData
            Accessible.name: tab.text
            Accessible.selected: tab.isCurrent
            onClicked: root.current = tab.index
            Keys.onLeftPressed: root.step(tab.index - 1)
            Keys.onRightPressed: root.step(tab.index + 1)

            contentItem: Text {
                text: tab.text
                textFormat: Text.PlainText
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                font.pixelSize: Theme.mediumText
                font.weight: Font.DemiBold
                color: tab.isCurrent ? Theme.accentText
                                     : Theme.font_color_grade2
            }

            background: Rectangle {
                radius: Theme.radius_7
                color: tab.isCurrent ? Theme.accentPale
                                     : tab.hovered ? Theme.hover : "transparent"

                VEXFocusFrame {
                    controlRadius: Theme.radius_7
                    visible: tab.visualFocus
                }
            }
        }
    }
}
